' The fraction of a negative serial counts forward: -1,25 is six in the morning of 29 December 1899.
WScript.Echo CDate(-1.25), Hour(CDate(-1.25)), Day(-1.25) '> 29/12/1899 6:00:00 6 29
WScript.Echo DateAdd("h", 20, CDate(-1.25)), CDbl(DateAdd("h", 20, CDate(-1.25))) '> 2:00:00 8,33333333333333E-02
WScript.Echo DateDiff("h", #12/28/1899 11:00:00 PM#, #12/29/1899 1:00:00 AM#) '> 2
WScript.Echo CDbl(DateSerial(100, 1, 1)), DateAdd("d", -50000, #4/9/1900#) '> -657434 17/05/1763

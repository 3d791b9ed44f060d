' The last half second of a day belongs to the next day.
d = CDate(36526.999999)
WScript.Echo Day(d), Hour(d), Minute(d), Second(d), d '> 2 0 0 0 02/01/2000
d = CDate(36526.99999)
WScript.Echo Day(d), Hour(d), Minute(d), Second(d) '> 1 23 59 59
d = CDate(0.5 + 0.4 / 86400)
WScript.Echo Hour(d), Second(d) '> 12 0
d = CDate(0.5 + 0.6 / 86400)
WScript.Echo Hour(d), Second(d) '> 12 1
' Before day 0 the time still runs forward.
d = CDate(-1.25)
WScript.Echo d, Weekday(d), CDbl(DateAdd("h", 19, d)), CDbl(DateAdd("h", -7, d)), CDbl(DateAdd("s", 1, d)) < -1.25 '> 29/12/1899 6:00:00 6 4,16666666666667E-02 -2,95833333333333 True
WScript.Echo DateDiff("h", d, CDate(0)), DateDiff("d", d, CDate(0.9)), DateDiff("n", CDate(-0.5), CDate(0.5)) '> 18 1 0
WScript.Echo CDbl(DateSerial(100, 1, 1)), CDbl(DateSerial(9999, 12, 31)), CDbl(TimeSerial(25, 0, 0)), CDbl(TimeSerial(-25, 0, 0)) '> -657434 2958465 1,04166666666667 -1,04166666666667
WScript.Echo Weekday(CDate(0)), Weekday(CDate(-657434)), Weekday(CDate(2958465)), Weekday(#1/1/2000#, 2), Weekday(#1/2/2000#, 1), Weekday(#1/2/2000#, 2) '> 7 6 6 6 1 7
On Error Resume Next
x = DateSerial(9999, 12, 32) : WScript.Echo Err.Number : Err.Clear '> 5
x = DateSerial(100, 1, 0) : WScript.Echo Err.Number : Err.Clear '> 5
x = DateAdd("d", 1, #12/31/9999#) : WScript.Echo Err.Number : Err.Clear '> 5
x = DateAdd("yyyy", 1, #12/31/9999#) : WScript.Echo Err.Number : Err.Clear '> 5
x = DateAdd("m", -1, #1/1/100#) : WScript.Echo Err.Number : Err.Clear '> 5
x = DateAdd("s", 1E13, #1/1/2000#) : WScript.Echo Err.Number : Err.Clear '> 5
x = TimeSerial(40000, 0, 0) : WScript.Echo Err.Number : Err.Clear '> 6

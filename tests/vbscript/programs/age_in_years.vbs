Function Age(born, today)
  Age = DateDiff("yyyy", born, today)
  If DateSerial(Year(today), Month(born), Day(born)) > today Then Age = Age - 1
End Function
WScript.Echo Age(#6/15/1980#, #6/14/2020#) '> 39
WScript.Echo Age(#6/15/1980#, #6/15/2020#) '> 40
WScript.Echo Age(#2/29/2000#, #2/28/2021#) '> 20
WScript.Echo Age(#2/29/2000#, #3/1/2021#) '> 21

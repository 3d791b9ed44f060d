Function Dos(n)
  Dos = Right("0" & n, 2)
End Function
d = #3/7/2021 4:05:06 AM#
WScript.Echo Year(d) & "-" & Dos(Month(d)) & "-" & Dos(Day(d)) & "T" & Dos(Hour(d)) & ":" & Dos(Minute(d)) & ":" & Dos(Second(d))
'> 2021-03-07T04:05:06

d = #1/1/2020#
For i = 1 To 1440
  d = DateAdd("n", 1, d)
Next
WScript.Echo d '> 02/01/2020

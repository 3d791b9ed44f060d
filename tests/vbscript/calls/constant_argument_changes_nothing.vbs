Const C = 5
Sub Dobla(n)
  n = n * 2
  WScript.Echo n
End Sub
Dobla C '> 10
WScript.Echo C '> 5

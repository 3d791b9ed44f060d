Dim s
Sub Cuenta(n)
  If n = 0 Then Exit Sub
  s = s & n
  Cuenta n - 1
End Sub
Cuenta 5
WScript.Echo s '> 54321

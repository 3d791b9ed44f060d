Sub S(n)
  If n = 0 Then Exit Sub
  WScript.Echo n
End Sub
S 0
S 1 '> 1

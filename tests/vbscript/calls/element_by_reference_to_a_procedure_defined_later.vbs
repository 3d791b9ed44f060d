Sub M
  Dim a(1)
  a(0) = 1
  S a(0)
  WScript.Echo a(0) '> 2
  Call S(a(0))
  WScript.Echo a(0) '> 2
End Sub
ExecuteGlobal "Sub S(x): x = 2: End Sub"
M

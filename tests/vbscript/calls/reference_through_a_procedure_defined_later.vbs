Sub F(a)
  G a
End Sub
Sub H(a)
  F a
End Sub
ExecuteGlobal "Sub G(x): x = x + 2: End Sub"
Sub M
  Dim v
  v = 1
  F v
  WScript.Echo v '> 3
  H v
  WScript.Echo v '> 5
End Sub
M

Sub F(a)
  a(0) = 2
End Sub
Sub G(a)
  ReDim a(5)
End Sub
Sub H(a)
  Erase a
End Sub
Sub I(a)
  For Each a In Array(8) : Next
End Sub
Sub T
  Dim v
  v = Array(1)
  F v
  WScript.Echo v(0) '> 2
  G v
  WScript.Echo UBound(v) '> 5
  H v
  I v
  WScript.Echo v '> 8
End Sub
T

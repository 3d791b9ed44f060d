Dim n
Function F(v)
  n = n + 1
  F = v
End Function
x = F(False) And F(True)
x = F(True) Or F(True)
WScript.Echo n '> 4

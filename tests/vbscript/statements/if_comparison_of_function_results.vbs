Function F(n)
  F = n
End Function
If F(1) = 1 And F("a") = "a" Then WScript.Echo "sí" '> sí
If Not F(False) Then WScript.Echo "también" '> también

Sub S
  Dim a(2)
  a(0) = a(0) + 1
  WScript.Echo a(0)
End Sub
S '> 1
S '> 1

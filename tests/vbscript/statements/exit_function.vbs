Function F(n)
  F = "poco"
  If n < 10 Then Exit Function
  F = "mucho"
End Function
WScript.Echo F(5), F(50) '> poco mucho

Function F(a) F = a * 2
End Function
WScript.Echo F(4) '> 8

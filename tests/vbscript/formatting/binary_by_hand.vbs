Function Binario(ByVal n)
  Do
    Binario = (n Mod 2) & Binario
    n = n \ 2
  Loop While n > 0
End Function
WScript.Echo Binario(0), Binario(5), Binario(65535) '> 0 101 1111111111111111

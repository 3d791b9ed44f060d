Function Nada()
End Function
WScript.Echo TypeName(Nada()), TypeName(Nada) '> Empty Empty

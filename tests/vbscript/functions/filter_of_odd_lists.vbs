Class Trio
  Public Default Function Valores : Valores = Array(6, 17, 8) : End Function
End Class
WScript.Echo Join(Filter(New Trio, 7)), Join(Filter(Array(1, 21, True), 1, False)) '> 17 True
On Error Resume Next
lista = Array("s", "t")
x = Filter(Null, "s") : WScript.Echo Err.Number : Err.Clear '> 94
x = Filter(lista, Null) : WScript.Echo Err.Number : Err.Clear '> 94
x = Filter("lista", "s") : WScript.Echo Err.Number : Err.Clear '> 13
x = Filter(Empty, "s") : WScript.Echo Err.Number : Err.Clear '> 13
x = Filter(lista, "s", Null) : WScript.Echo Err.Number : Err.Clear '> 94
x = Filter(lista, "s", True, Null) : WScript.Echo Err.Number : Err.Clear '> 94
x = Filter(lista, "s", True, 2) : WScript.Echo Err.Number : Err.Clear '> 5
x = Filter(Nothing, "s") : WScript.Echo Err.Number : Err.Clear '> 91
x = Filter(Array("s", Null), "s") : WScript.Echo Err.Number : Err.Clear '> 13
x = Filter(Array("s", Array(1)), "s") : WScript.Echo Err.Number : Err.Clear '> 13
Dim t(1, 1)
x = Filter(t, "s") : WScript.Echo Err.Number : Err.Clear '> 13

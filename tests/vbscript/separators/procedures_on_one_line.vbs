Sub Ring() n = n + 1 End Sub
Function Doble(x) Doble = x * 2 End Function
Sub Nada() End Sub
Class K : Public v : Property Get W() W = v * 3 End Property Sub Pon(x) v = x End Sub End Class
n = 0
Ring
Ring()
Nada
Set o = New K
o.Pon 4
WScript.Echo n, Doble(4), o.W '> 2 8 12

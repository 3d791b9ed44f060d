Class Nodo
  Public Level, nombre
  Sub Start(n) WScript.Echo nombre, "start", n End Sub
  Sub Para WScript.Echo nombre, "para" End Sub
  Function Hijo(n)
    Set Hijo = New Nodo
    Hijo.nombre = nombre & n
  End Function
End Class
Set k = New Nodo : k.nombre = "k"
Function Lookup(clave)
  Set Lookup = Eval(clave)
End Function
Lookup ("k").Start 4 '> k start 4
Lookup ("k").Level = 4
WScript.Echo k.Level '> 4
Lookup ("k").Para '> k para
Set Lookup ("k").Level = k
WScript.Echo k.Level Is k '> True
Lookup ("k") .Para '> k para
Lookup ("k").Hijo (2).Start 5 '> k2 start 5
Lookup ("k").Hijo (2).Hijo (3).Para '> k23 para
Call Lookup ("k").Start (6) '> k start 6
grid = Array(Array(k, k), Array(k, k))
r = 1 : c = 0
grid(r) (c).Start 7 '> k start 7
grid (r) (c).Start (8) '> k start 8
grid (r) (c).nombre = "z"
WScript.Echo k.nombre '> z
Show (1) + 2 '> 3
Show (1) & (2) '> 12
Show (k.Level Is k) '> True
Sub Show(x) WScript.Echo x End Sub

ExecuteGlobal "Sub Doble(x) : x = x * 2 : End Sub : Function Mas(x) : x = x + 1 : Mas = x : End Function"
Dim a(1), b
a(0) = 3
Execute "Doble a(0)" : WScript.Echo a(0) '> 6
ExecuteGlobal "Call Doble(a(0)) : y = Mas(a(0))" : WScript.Echo a(0), y '> 13 13
ExecuteGlobal "Doble (a(0)) : Doble a(0) + 0" : WScript.Echo a(0) '> 13
b = Array(Array(1, 2))
ExecuteGlobal "Sub T : Dim l : l = Array(5) : Doble l(0) : y = l(0) : End Sub : T" : WScript.Echo y '> 10
Sub P
  Dim l
  l = Array(4)
  Execute "Sub Mitad(x) : x = x / 2 : End Sub"
  Execute "Mitad l(0)"
  WScript.Echo l(0) '> 2
  Mitad l(0)
  WScript.Echo l(0) '> 1
End Sub
P

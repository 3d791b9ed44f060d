Class Caja
  Public n
  Public Default Sub Guarda(x)
    n = x
    WScript.Echo "guarda", x
  End Sub
End Class
Sub Show(x) WScript.Echo x End Sub
Sub Show2(x, y) WScript.Echo x, y End Sub
a = Array(5, 6)
Show (a)(1) '> 6
Show (a)(1) + 1 '> 7
Show2 (a)(1), 2 '> 6 2
Show2 (a)(0), (a)(1) '> 5 6
b = Array(New Caja)
b(0) 3 '> guarda 3
b(0)(4) '> guarda 4
b(0) (5) '> guarda 5
b(0)(6) * 2 '> guarda 12

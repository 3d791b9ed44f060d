Class Counter
  Public Default Property Get V
    g = g + 1
    V = 1
  End Property
End Class
Function F
  g = 2
  F = 0
End Function
Dim g, o, a(3), b(3, 3)
Set o = New Counter
g = 1 : a(g) = Len(o) : WScript.Echo a(1), "[" & a(2) & "]" '> 1 []
g = 1 : a(g) = o : WScript.Echo a(1), "[" & a(2) & "]" '> 1 []
g = 1 : b(g, o) = 5 : WScript.Echo b(1, 1) '> 5
g = 1 : b(o, g) = 6 : WScript.Echo b(1, 1) '> 6
g = 1 : b(g, F) = 7 : WScript.Echo b(1, 0), "[" & b(2, 0) & "]" '> 7 []
g = 1 : b(0, g) = o : WScript.Echo b(0, 1), "[" & b(0, 2) & "]" '> 1 []

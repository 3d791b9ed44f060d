' A default member that runs while the right operand is evaluated comes too late for the left one.
Class Counter
  Public Default Property Get V
    g = g + 1
    V = 1
  End Property
End Class
Dim g, o, a(5), b(5, 5), r
Set o = New Counter
a(1) = 10
b(1, 1) = "b11"
b(2, 1) = "b21"
g = 1 : r = g + a(o) : WScript.Echo r, g '> 11 2
g = 1 : r = g + Len(o) : WScript.Echo r '> 2
g = 1 : r = g + (o + 1) : WScript.Echo r '> 3
g = 1 : r = g - -o : WScript.Echo r '> 2
g = 1 : r = g & (Not o) : WScript.Echo r '> 1-2
g = 1 : r = g & (o And 1) : WScript.Echo r '> 11
g = 1 : r = g & (o Is Nothing) & g : WScript.Echo r '> 1False1
g = 1 : WScript.Echo g = a(o) - 9 '> True
g = 1
If g = Len(o) Then WScript.Echo "igual" '> igual
g = 0
Do While g < Len(o) + 1 : Loop
WScript.Echo g '> 3
g = 1 : r = b(g, o) : WScript.Echo r '> b11
g = 1 : r = b(g, Len(o)) : WScript.Echo r '> b11
g = 1 : r = b(o, g) : WScript.Echo r '> b11
g = 1 : r = o & g : WScript.Echo r '> 11
g = 1 : r = g & o : WScript.Echo r '> 11
g = 1 : r = g + o : WScript.Echo r '> 2
g = 1 : r = o + g : WScript.Echo r '> 2
g = 1 : r = a(o) + g : WScript.Echo r '> 12

Sub P(x)
  Dim n
  n = x + Len(o)
  WScript.Echo n '> 6
  n = x + a(o)
  WScript.Echo n '> 16
End Sub
g = 5
P g
WScript.Echo g '> 7

Class Holder
  Private total
  Public Default Function Bump
    total = total + 1
    Bump = 1
  End Function
  Sub Run(other)
    total = 1
    WScript.Echo total + Len(other), total '> 2 2
    WScript.Echo total + other, total '> 3 3
  End Sub
End Class
Dim h
Set h = New Holder
h.Run h

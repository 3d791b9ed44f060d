Class K
  Private Sub Class_Initialize
    g = 2
  End Sub
  Public Default Property Get V : V = "c" : End Property
  Public Property Get W : g = 3 : W = "w" : End Property
End Class
Dim g, s
g = 1
WScript.Echo g & (New K) '> 1c
g = 1
WScript.Echo g & "-" & (New K) & "-" & g '> 1-c-2
g = 1
Set k1 = New K
g = 1
WScript.Echo g + Sube(), g '> 11 10
g = 1
WScript.Echo g & k1.W & g '> 1w3
g = 1
If g = Sube() - 9 Then WScript.Echo "igual" '> igual
g = 1
WScript.Echo Array(g, Sube(), g)(0) '> 1
g = 1
WScript.Echo (g) & Sube() '> 110
Function Sube
  g = 10
  Sube = 10
End Function
Function F
  s = "q"
  F = "f"
End Function
s = "a"
s = s & F() & "z"
WScript.Echo s '> afz
s = "a"
s = s & F()
WScript.Echo s '> af
Sub P(t)
  t = t & Q(t) & "."
  WScript.Echo t '> xy.
End Sub
Function Q(u)
  u = "cambia"
  Q = "y"
End Function
P "x"

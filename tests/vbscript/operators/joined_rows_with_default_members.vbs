' In a row of & each default member runs before what stands right of it is read or called.
Class Counter
  Public Default Property Get V
    g = g + 1
    V = "o"
  End Property
End Class
Function F
  F = "f" & g
End Function
Dim g, o, s, list(2), d
Set o = New Counter
list(1) = "l1" : list(2) = "l2"
g = 1 : WScript.Echo g & o & g '> 1o2
g = 1 : WScript.Echo o & g & g '> o12
g = 1 : WScript.Echo "a" & o & g & o & g '> ao2o3
g = 1 : WScript.Echo "a" & o & F & "z" '> aof2z
g = 1 : WScript.Echo "a" & o & list(g) '> aol2
g = 1 : WScript.Echo "a" & o & (g + 1) '> ao3
g = 1 : WScript.Echo "a" & o & Len(g) & (g) '> ao12
g = 1 : s = "a" : s = s & o & g & F : WScript.Echo s '> ao2f2
g = 7 : g = g & o : WScript.Echo g '> 7o
Class Renamer
  Public Default Property Get V
    s = "nuevo"
    V = "r"
  End Property
End Class
Dim n
Set n = New Renamer
s = "viejo" : s = s & n : WScript.Echo s '> viejor
s = "viejo" : s = s & n & "." : WScript.Echo s '> viejor.
s = "viejo" : s = n & s : WScript.Echo s '> rviejo
s = "viejo" : s = s & n & s : WScript.Echo s '> viejornuevo

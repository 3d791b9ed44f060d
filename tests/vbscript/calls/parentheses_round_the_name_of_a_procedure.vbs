Sub Fill(x)
  x = "lleno"
End Sub
Sub Nada
  WScript.Echo "nada"
End Sub
Function Doble(x)
  Doble = x * 2
  x = 0
End Function
v = ""
Call ((Fill)) ((v))
WScript.Echo "[" & v & "]" '> []
Call ((Fill)) (v)
WScript.Echo v '> lleno
v = ""
Call (Fill)(v)
WScript.Echo v '> lleno
Call (Nada) '> nada
Call ((Nada))() '> nada
n = 4
WScript.Echo 0 + (Doble)(n), n '> 8 0
Sub Local
  Dim w
  Call (Fill)(w)
  WScript.Echo w '> lleno
End Sub
Local

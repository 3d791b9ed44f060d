' What ExecuteGlobal defines later is what a procedure passes on, though the name was unknown when it was compiled.
Sub Principal
  Muestra VERSION
  Muestra cuenta
  Muestra Titulo
  Muestra libre
  Suma cuenta
  Suma libre
  Suma VERSION
  WScript.Echo VERSION, cuenta, Titulo, libre
End Sub
Sub Muestra(v)
  WScript.Echo "[" & v & "]"
End Sub
Sub Suma(v)
  v = v + 1
End Sub
Principal
'> []
'> []
'> []
'> []
'> 1 1  1
ExecuteGlobal "Const VERSION = 3 : Dim cuenta : cuenta = 7 : Function Titulo : Titulo = ""t"" : End Function"
Principal
'> [3]
'> [7]
'> [t]
'> []
'> 3 8 t 1

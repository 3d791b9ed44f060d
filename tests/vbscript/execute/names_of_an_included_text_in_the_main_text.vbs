' What ExecuteGlobal defines can be passed on, although the name was unknown when the text around was compiled.
ExecuteGlobal "Function Uno : Uno = 1 : End Function : Const DOS = 2 : Dim tres : tres = 3"
WScript.Echo Uno '> 1
WScript.Echo Uno, DOS, tres '> 1 2 3
x = Uno + DOS + tres
WScript.Echo x, Uno & "a", Uno() '> 6 1a 1
If Uno = 1 Then WScript.Echo "1" '> 1
Muestra Uno '> [1]
Muestra tres '> [3]
Suma tres, Uno
WScript.Echo tres, Eval("tres") '> 4 4
Muestra nada '> []
Sub Muestra(v)
  WScript.Echo "[" & v & "]"
End Sub
Sub Suma(a, b)
  a = a + b
  b = 7
End Sub
Sub Mas
  ExecuteGlobal "Function Cuatro : Cuatro = 4 : End Function"
  WScript.Echo Cuatro '> 4
End Sub
Mas
WScript.Echo Cuatro '> 4
Class K : End Class
ExecuteGlobal "Class Tarde : End Class"
On Error Resume Next
WScript.Echo Tarde
WScript.Echo Err.Number '> 13

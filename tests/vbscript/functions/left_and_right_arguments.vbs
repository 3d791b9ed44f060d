On Error Resume Next
For Each f In Array("Left", "Right", "LeftB", "RightB")
  WScript.Echo f, Numero(f & "(Null, -1)"), Numero(f & "(Null, Null)"), Numero(f & "(""ab"", Null)"), _
    Numero(f & "(Null, ""x"")"), Numero(f & "(""ab"", -1)"), Numero(f & "(Array(1), 1)"), Numero(f & "(""ab"", 3E9)")
Next
'> Left 5 94 94 13 5 13 6
'> Right 5 94 94 13 5 13 6
'> LeftB 5 94 94 13 5 13 6
'> RightB 5 94 94 13 5 13 6
Function Numero(texto)
  On Error Resume Next
  x = Eval(texto)
  Numero = Err.Number
End Function
WScript.Echo IsNull(Left(Null, 0)), IsNull(Right(Null, 2)), IsNull(LeftB(Null, 2)), IsNull(RightB(Null, 2)) '> True True True True
WScript.Echo Left("ruta", 2.5), Right("ruta", 1.5), Left("ruta", 9), Right("ruta", 4), "[" & Left("ruta", 0) & Right("ruta", 0) & "]" '> ru ta ruta ruta []
WScript.Echo Left(12345, "2"), Right(12345, 2), Left(True, 2), Right(-7, 2), "[" & Left(Empty, 3) & "]" '> 12 45 Tr -7 []
WScript.Echo LeftB("ruta", 4), RightB("ruta", 4), LeftB("ruta", 99), RightB("ruta", 99), LenB(LeftB("ruta", 3)) '> ru ta ruta ruta 3

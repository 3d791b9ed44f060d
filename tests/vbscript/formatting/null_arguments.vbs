' Null as what is to be formatted: 13. For any other argument: 94.
On Error Resume Next
For Each f In Array("FormatNumber", "FormatCurrency", "FormatPercent")
  WScript.Echo f, Numero(f & "(Null)"), Numero(f & "(5, Null)"), Numero(f & "(5, 1, Null)"), _
    Numero(f & "(5, 1, -1, Null)"), Numero(f & "(5, 1, -1, -1, Null)"), Numero(f & "(""x"")"), Numero(f & "(Null, 2)")
Next
'> FormatNumber 13 94 94 94 94 13 13
'> FormatCurrency 13 94 94 94 94 13 13
'> FormatPercent 13 94 94 94 94 13 13
WScript.Echo Numero("FormatDateTime(Null)"), Numero("FormatDateTime(0, Null)"), Numero("FormatDateTime(Null, 1)"), Numero("FormatDateTime(""x"")") '> 13 94 13 13
Function Numero(texto)
  On Error Resume Next
  x = Eval(texto)
  Numero = Err.Number
End Function

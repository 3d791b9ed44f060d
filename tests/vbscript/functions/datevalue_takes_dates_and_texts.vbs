On Error Resume Next
For Each f In Array("DateValue", "TimeValue")
  WScript.Echo f, Numero(f & "(1)"), Numero(f & "(36526.5)"), Numero(f & "(True)"), Numero(f & "(Null)"), _
    Numero(f & "(Empty)"), Numero(f & "(CCur(5))"), Numero(f & "(""martes x"")"), Numero(f & "("""")"), Numero(f & "(Nothing)")
Next
'> DateValue 13 13 13 94 13 13 13 13 91
'> TimeValue 13 13 13 94 13 13 13 13 91
Function Numero(texto)
  On Error Resume Next
  x = Eval(texto)
  Numero = Err.Number
End Function
d = DateSerial(2020, 2, 1) + TimeSerial(13, 30, 0)
WScript.Echo DateValue(d), TimeValue(d), DateValue("1/2/2020 13:30"), TimeValue("1/2/2020 13:30") '> 01/02/2020 13:30:00 01/02/2020 13:30:00
WScript.Echo DateValue(CDate(36526.75)) = DateSerial(2000, 1, 1), TimeValue(CDate(-1.25)) = TimeSerial(6, 0, 0) '> True True

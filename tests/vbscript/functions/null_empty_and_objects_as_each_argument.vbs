' Null, Empty, Nothing, objects without a default value and arrays as each argument of each function.
' Each line: what every value gives in place of the question mark; a number alone is that of the error.
valores = Array("Null", "Empty", "Nothing", "sinValor", "diccionario", "lista")
Class Vacia : End Class
Set sinValor = New Vacia
Set diccionario = CreateObject("Scripting.Dictionary")
lista = Array(1, 2)
Function Resultado(texto)
  On Error Resume Next
  Dim x
  x = Eval(texto)
  If Err.Number <> 0 Then
    Resultado = Err.Number
  ElseIf IsNull(x) Then
    Resultado = "Null"
  ElseIf IsArray(x) Then
    Resultado = "Array(" & UBound(x) & ")"
  Else
    Resultado = "<" & x & ">"
  End If
End Function
Sub Prueba(plantilla)
  Dim valor, s
  For Each valor In valores
    s = s & " " & Resultado(Replace(plantilla, "?", valor))
  Next
  WScript.Echo Mid(s, 2)
End Sub
Prueba "Abs(?)" '> Null <0> 91 438 450 13
Prueba "Asc(?)" '> 94 5 91 438 450 13
Prueba "AscB(?)" '> 94 5 91 438 450 13
Prueba "AscW(?)" '> 94 5 91 438 450 13
Prueba "Atn(?)" '> 94 <0> 91 438 450 13
Prueba "CBool(?)" '> 94 <False> 91 438 450 13
Prueba "CByte(?)" '> 94 <0> 91 438 450 13
Prueba "CCur(?)" '> 94 <0> 91 438 450 13
Prueba "CDate(?)" '> 94 <0:00:00> 91 438 450 13
Prueba "CDbl(?)" '> 94 <0> 91 438 450 13
Prueba "CInt(?)" '> 94 <0> 91 438 450 13
Prueba "CLng(?)" '> 94 <0> 91 438 450 13
Prueba "Cos(?)" '> 94 <1> 91 438 450 13
Prueba "CSng(?)" '> 94 <0> 91 438 450 13
Prueba "CStr(?)" '> 94 <> 91 438 450 13
Prueba "DateAdd(?, 1, DateSerial(2020,1,1))" '> 94 5 91 438 450 13
Prueba "DateAdd(""d"", ?, DateSerial(2020,1,1))" '> 94 <01/01/2020> 91 438 450 13
Prueba "DateAdd(""d"", 1, ?)" '> Null <31/12/1899> 91 438 450 13
Prueba "DateDiff(?, DateSerial(2020,1,1), DateSerial(2020,1,2), 1, 1)" '> 94 5 91 438 450 13
Prueba "DateDiff(""d"", ?, DateSerial(2020,1,2), 1, 1)" '> Null <43832> 91 438 450 13
Prueba "DateDiff(""d"", DateSerial(2020,1,1), ?, 1, 1)" '> Null <-43831> 91 438 450 13
Prueba "DateDiff(""d"", DateSerial(2020,1,1), DateSerial(2020,1,2), ?, 1)" '> 94 <1> 91 438 450 13
Prueba "DateDiff(""d"", DateSerial(2020,1,1), DateSerial(2020,1,2), 1, ?)" '> 94 <1> 91 438 450 13
Prueba "DatePart(?, DateSerial(2020,1,1), 1, 1)" '> 94 5 91 438 450 13
Prueba "DatePart(""d"", ?, 1, 1)" '> Null <30> 91 438 450 13
Prueba "DatePart(""d"", DateSerial(2020,1,1), ?, 1)" '> 94 <1> 91 438 450 13
Prueba "DatePart(""d"", DateSerial(2020,1,1), 1, ?)" '> 94 <1> 91 438 450 13
Prueba "DateSerial(?, 1, 1)" '> 94 <01/01/2000> 91 438 450 13
Prueba "DateSerial(2020, ?, 1)" '> 94 <01/12/2019> 91 438 450 13
Prueba "DateSerial(2020, 1, ?)" '> 94 <31/12/2019> 91 438 450 13
Prueba "DateValue(?)" '> 94 13 91 438 450 13
Prueba "Day(?)" '> Null <30> 91 438 450 13
Prueba "Escape(?)" '> 94 <> 91 438 450 13
Prueba "Exp(?)" '> 94 <1> 91 438 450 13
Prueba "Filter(?, ""a"", True, 0)" '> 94 13 91 438 450 Array(-1)
Prueba "Filter(Array(""a""), ?, True, 0)" '> 94 Array(0) 91 438 450 13
Prueba "Filter(Array(""a""), ""a"", ?, 0)" '> 94 Array(-1) 91 438 450 13
Prueba "Filter(Array(""a""), ""a"", True, ?)" '> 94 Array(0) 91 438 450 13
Prueba "Fix(?)" '> Null <0> 91 438 450 13
Prueba "FormatCurrency(?, 1, -1, -1, -1)" '> 13 <0,0 €> 91 438 450 13
Prueba "FormatCurrency(1, ?, -1, -1, -1)" '> 94 <1 €> 91 438 450 13
Prueba "FormatCurrency(1, 1, ?, -1, -1)" '> 94 <1,0 €> 91 438 450 13
Prueba "FormatCurrency(1, 1, -1, ?, -1)" '> 94 <1,0 €> 91 438 450 13
Prueba "FormatCurrency(1, 1, -1, -1, ?)" '> 94 <1,0 €> 91 438 450 13
Prueba "FormatDateTime(?, 1)" '> 13 <sábado, 30 de diciembre de 1899> 91 438 450 13
Prueba "FormatDateTime(1, ?)" '> 94 <31/12/1899> 91 438 450 13
Prueba "FormatNumber(?, 1, -1, -1, -1)" '> 13 <0,0> 91 438 450 13
Prueba "FormatNumber(1, ?, -1, -1, -1)" '> 94 <1> 91 438 450 13
Prueba "FormatNumber(1, 1, ?, -1, -1)" '> 94 <1,0> 91 438 450 13
Prueba "FormatNumber(1, 1, -1, ?, -1)" '> 94 <1,0> 91 438 450 13
Prueba "FormatNumber(1, 1, -1, -1, ?)" '> 94 <1,0> 91 438 450 13
Prueba "FormatPercent(?, 1, -1, -1, -1)" '> 13 <0,0%> 91 438 450 13
Prueba "FormatPercent(1, ?, -1, -1, -1)" '> 94 <100%> 91 438 450 13
Prueba "FormatPercent(1, 1, ?, -1, -1)" '> 94 <100,0%> 91 438 450 13
Prueba "FormatPercent(1, 1, -1, ?, -1)" '> 94 <100,0%> 91 438 450 13
Prueba "FormatPercent(1, 1, -1, -1, ?)" '> 94 <100,0%> 91 438 450 13
Prueba "Hex(?)" '> Null <0> 91 438 450 13
Prueba "Hour(?)" '> Null <0> 91 438 450 13
Prueba "InStr(?, ""a"", ""a"", 0)" '> 94 5 91 438 450 13
Prueba "InStr(1, ?, ""a"", 0)" '> Null <0> 91 438 450 13
Prueba "InStr(1, ""a"", ?, 0)" '> Null <1> 91 438 450 13
Prueba "InStr(1, ""a"", ""a"", ?)" '> 94 <1> 91 438 450 13
Prueba "InStrB(?, ""a"", ""a"", 0)" '> 94 5 91 438 450 13
Prueba "InStrB(1, ?, ""a"", 0)" '> Null <0> 91 438 450 13
Prueba "InStrB(1, ""a"", ?, 0)" '> Null <1> 91 438 450 13
Prueba "InStrB(1, ""a"", ""a"", ?)" '> 94 <1> 91 438 450 13
Prueba "InStrRev(?, ""a"", 1, 0)" '> 94 <0> 91 438 450 13
Prueba "InStrRev(""a"", ?, 1, 0)" '> 94 <1> 91 438 450 13
Prueba "InStrRev(""a"", ""a"", ?, 0)" '> 94 5 91 438 450 13
Prueba "InStrRev(""a"", ""a"", 1, ?)" '> 94 <1> 91 438 450 13
Prueba "Int(?)" '> Null <0> 91 438 450 13
Prueba "Join(?, "","")" '> 94 13 91 438 450 <1,2>
Prueba "Join(Array(""a""), ?)" '> 94 <a> 91 438 450 13
Prueba "LBound(?, 1)" '> 13 13 91 438 450 <0>
Prueba "LBound(Array(1), ?)" '> 94 9 91 438 450 13
Prueba "LCase(?)" '> Null <> 91 438 450 13
Prueba "Left(?, 1)" '> Null <> 91 438 450 13
Prueba "Left(""a"", ?)" '> 94 <> 91 438 450 13
Prueba "LeftB(?, 1)" '> Null <> 91 438 450 13
Prueba "LeftB(""a"", ?)" '> 94 <> 91 438 450 13
Prueba "Len(?)" '> Null <0> 91 438 450 13
Prueba "LenB(?)" '> Null <0> 91 438 450 13
Prueba "Log(?)" '> 94 5 91 438 450 13
Prueba "LTrim(?)" '> Null <> 91 438 450 13
Prueba "Mid(?, 1, 1)" '> Null <> 91 438 450 13
Prueba "Mid(""a"", ?, 1)" '> 94 5 91 438 450 13
Prueba "Mid(""a"", 1, ?)" '> 94 <> 91 438 450 13
Prueba "MidB(?, 1, 1)" '> Null <> 91 438 450 13
Prueba "MidB(""a"", ?, 1)" '> 94 5 91 438 450 13
Prueba "MidB(""a"", 1, ?)" '> 94 <> 91 438 450 13
Prueba "Minute(?)" '> Null <0> 91 438 450 13
Prueba "Month(?)" '> Null <12> 91 438 450 13
Prueba "MonthName(?, False)" '> 94 5 91 438 450 13
Prueba "MonthName(1, ?)" '> 94 <enero> 91 438 450 13
Prueba "Oct(?)" '> Null <0> 91 438 450 13
Prueba "Replace(?, ""a"", ""b"", 1, -1, 0)" '> 94 <> 91 438 450 13
Prueba "Replace(""a"", ?, ""b"", 1, -1, 0)" '> 94 <a> 91 438 450 13
Prueba "Replace(""a"", ""a"", ?, 1, -1, 0)" '> 94 <> 91 438 450 13
Prueba "Replace(""a"", ""a"", ""b"", ?, -1, 0)" '> 94 5 91 438 450 13
Prueba "Replace(""a"", ""a"", ""b"", 1, ?, 0)" '> 94 <a> 91 438 450 13
Prueba "Replace(""a"", ""a"", ""b"", 1, -1, ?)" '> 94 <b> 91 438 450 13
Prueba "RGB(?, 1, 1)" '> 94 <65792> 91 438 450 13
Prueba "RGB(1, ?, 1)" '> 94 <65537> 91 438 450 13
Prueba "RGB(1, 1, ?)" '> 94 <257> 91 438 450 13
Prueba "Right(?, 1)" '> Null <> 91 438 450 13
Prueba "Right(""a"", ?)" '> 94 <> 91 438 450 13
Prueba "RightB(?, 1)" '> Null <> 91 438 450 13
Prueba "RightB(""a"", ?)" '> 94 <> 91 438 450 13
Prueba "Round(?, 1)" '> Null <0> 91 438 450 13
Prueba "Round(1.5, ?)" '> 94 <2> 91 438 450 13
Prueba "RTrim(?)" '> Null <> 91 438 450 13
Prueba "Second(?)" '> Null <0> 91 438 450 13
Prueba "Sgn(?)" '> 94 <0> 91 438 450 13
Prueba "Sin(?)" '> 94 <0> 91 438 450 13
Prueba "Space(?)" '> 94 <> 91 438 450 13
Prueba "Split(?, "","", -1, 0)" '> 94 Array(-1) 91 438 450 13
Prueba "Split(""a"", ?, -1, 0)" '> 94 Array(0) 91 438 450 13
Prueba "Split(""a"", "","", ?, 0)" '> 94 Array(-1) 91 438 450 13
Prueba "Split(""a"", "","", -1, ?)" '> 94 Array(0) 91 438 450 13
Prueba "Sqr(?)" '> 94 <0> 91 438 450 13
Prueba "StrComp(?, ""a"", 0)" '> Null <-1> 91 438 450 13
Prueba "StrComp(""a"", ?, 0)" '> Null <1> 91 438 450 13
Prueba "StrComp(""a"", ""a"", ?)" '> 94 <0> 91 438 450 13
Prueba "String(?, ""a"")" '> Null <> 91 438 450 13
Prueba "StrReverse(?)" '> 94 <> 91 438 450 13
Prueba "Tan(?)" '> 94 <0> 91 438 450 13
Prueba "TimeSerial(?, 1, 1)" '> 94 <0:01:01> 91 438 450 13
Prueba "TimeSerial(1, ?, 1)" '> 94 <1:00:01> 91 438 450 13
Prueba "TimeSerial(1, 1, ?)" '> 94 <1:01:00> 91 438 450 13
Prueba "TimeValue(?)" '> 94 13 91 438 450 13
Prueba "Trim(?)" '> Null <> 91 438 450 13
Prueba "UBound(?, 1)" '> 13 13 91 438 450 <1>
Prueba "UBound(Array(1), ?)" '> 94 9 91 438 450 13
Prueba "UCase(?)" '> Null <> 91 438 450 13
Prueba "Unescape(?)" '> 94 <> 91 438 450 13
Prueba "Weekday(?, 1)" '> Null <7> 91 438 450 13
Prueba "Weekday(1, ?)" '> 94 <7> 91 438 450 13
Prueba "WeekdayName(?, False, 1)" '> 94 5 91 438 450 13
Prueba "WeekdayName(1, ?, 1)" '> 94 <domingo> 91 438 450 13
Prueba "WeekdayName(1, False, ?)" '> 94 <lunes> 91 438 450 13
Prueba "Year(?)" '> Null <1899> 91 438 450 13
Prueba "CreateObject(?)" '> 94 429 91 438 450 13
Prueba "TypeName(?)" '> <Null> <Empty> <Nothing> <Vacia> <Dictionary> <Variant()>
Prueba "VarType(?)" '> <1> <0> <9> <9> <9> <8204>
Prueba "IsNumeric(?)" '> <False> <True> <False> <False> <False> <False>
Prueba "IsDate(?)" '> <False> <False> <False> <False> <False> <False>
Prueba "IsArray(?)" '> <False> <False> <False> <False> <False> <True>
Prueba "IsNull(?)" '> <True> <False> <False> <False> <False> <False>
Prueba "IsEmpty(?)" '> <False> <True> <False> <False> <False> <False>
Prueba "IsObject(?)" '> <False> <False> <True> <True> <True> <False>

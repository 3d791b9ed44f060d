' Texts that are numbers, texts that are none, and dates as each argument of each function.
' Each line: what every value gives in place of the question mark; a number alone is that of the error.
valores = Array("""2""", """-1""", """x""", """""", """ 3 """, "#1/2/1900#")
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
Prueba "Abs(?)" '> <2> <1> 13 13 <3> <02/01/1900>
Prueba "Asc(?)" '> <50> <45> <120> 5 <32> <48>
Prueba "AscB(?)" '> <50> <45> <120> 5 <32> <48>
Prueba "AscW(?)" '> <50> <45> <120> 5 <32> <48>
Prueba "Atn(?)" '> <1,10714871779409> <-0,785398163397448> 13 13 <1,24904577239825> <1,24904577239825>
Prueba "CBool(?)" '> <True> <True> 13 13 <True> <True>
Prueba "CByte(?)" '> <2> 6 13 13 <3> <3>
Prueba "CCur(?)" '> <2> <-1> 13 13 <3> <3>
Prueba "CDate(?)" '> <01/01/1900> <29/12/1899> 13 13 <02/01/1900> <02/01/1900>
Prueba "CDbl(?)" '> <2> <-1> 13 13 <3> <3>
Prueba "CInt(?)" '> <2> <-1> 13 13 <3> <3>
Prueba "CLng(?)" '> <2> <-1> 13 13 <3> <3>
Prueba "Cos(?)" '> <-0,416146836547142> <0,54030230586814> 13 13 <-0,989992496600445> <-0,989992496600445>
Prueba "CSng(?)" '> <2> <-1> 13 13 <3> <3>
Prueba "CStr(?)" '> <2> <-1> <x> <> < 3 > <02/01/1900>
Prueba "DateAdd(?, 1, DateSerial(2020,1,1))" '> 5 5 5 5 5 5
Prueba "DateAdd(""d"", ?, DateSerial(2020,1,1))" '> <03/01/2020> <31/12/2019> 13 13 <04/01/2020> <04/01/2020>
Prueba "DateAdd(""d"", 1, ?)" '> <02/01/1900> <0:00:00> 13 13 <03/01/1900> <03/01/1900>
Prueba "DateDiff(?, DateSerial(2020,1,1), DateSerial(2020,1,2), 1, 1)" '> 5 5 5 5 5 5
Prueba "DateDiff(""d"", ?, DateSerial(2020,1,2), 1, 1)" '> <43830> <43833> 13 13 <43829> <43829>
Prueba "DateDiff(""d"", DateSerial(2020,1,1), ?, 1, 1)" '> <-43829> <-43832> 13 13 <-43828> <-43828>
Prueba "DateDiff(""d"", DateSerial(2020,1,1), DateSerial(2020,1,2), ?, 1)" '> <1> 5 13 13 <1> <1>
Prueba "DateDiff(""d"", DateSerial(2020,1,1), DateSerial(2020,1,2), 1, ?)" '> <1> 5 13 13 <1> <1>
Prueba "DatePart(?, DateSerial(2020,1,1), 1, 1)" '> 5 5 5 5 5 5
Prueba "DatePart(""d"", ?, 1, 1)" '> <1> <29> 13 13 <2> <2>
Prueba "DatePart(""d"", DateSerial(2020,1,1), ?, 1)" '> <1> 5 13 13 <1> <1>
Prueba "DatePart(""d"", DateSerial(2020,1,1), 1, ?)" '> <1> 5 13 13 <1> <1>
Prueba "DateSerial(?, 1, 1)" '> <01/01/2002> 5 13 13 <01/01/2003> <01/01/2003>
Prueba "DateSerial(2020, ?, 1)" '> <01/02/2020> <01/11/2019> 13 13 <01/03/2020> <01/03/2020>
Prueba "DateSerial(2020, 1, ?)" '> <02/01/2020> <30/12/2019> 13 13 <03/01/2020> <03/01/2020>
Prueba "DateValue(?)" '> 13 13 13 13 13 <02/01/1900>
Prueba "Day(?)" '> <1> <29> 13 13 <2> <2>
Prueba "Escape(?)" '> <2> <-1> <x> <> <%203%20> <02/01/1900>
Prueba "Exp(?)" '> <7,38905609893065> <0,367879441171442> 13 13 <20,0855369231877> <20,0855369231877>
Prueba "Filter(?, ""a"", True, 0)" '> 13 13 13 13 13 13
Prueba "Filter(Array(""a""), ?, True, 0)" '> Array(-1) Array(-1) Array(-1) Array(0) Array(-1) Array(-1)
Prueba "Filter(Array(""a""), ""a"", ?, 0)" '> Array(0) Array(0) 13 13 Array(0) Array(0)
Prueba "Filter(Array(""a""), ""a"", True, ?)" '> 5 5 13 13 5 5
Prueba "Fix(?)" '> <2> <-1> 13 13 <3> <02/01/1900>
Prueba "FormatCurrency(?, 1, -1, -1, -1)" '> <2,0 €> <(1,0 €)> 13 13 <3,0 €> <3,0 €>
Prueba "FormatCurrency(1, ?, -1, -1, -1)" '> <1,00 €> <1,00 €> 13 13 <1,000 €> <1,000 €>
Prueba "FormatCurrency(1, 1, ?, -1, -1)" '> <1,0 €> <1,0 €> 13 13 <1,0 €> <1,0 €>
Prueba "FormatCurrency(1, 1, -1, ?, -1)" '> <1,0 €> <1,0 €> 13 13 <1,0 €> <1,0 €>
Prueba "FormatCurrency(1, 1, -1, -1, ?)" '> <1,0 €> <1,0 €> 13 13 <1,0 €> <1,0 €>
Prueba "FormatDateTime(?, 1)" '> <lunes, 1 de enero de 1900> <viernes, 29 de diciembre de 1899> 13 13 <martes, 2 de enero de 1900> <martes, 2 de enero de 1900>
Prueba "FormatDateTime(1, ?)" '> <31/12/1899> 5 13 13 <0:00:00> <0:00:00>
Prueba "FormatNumber(?, 1, -1, -1, -1)" '> <2,0> <(1,0)> 13 13 <3,0> <3,0>
Prueba "FormatNumber(1, ?, -1, -1, -1)" '> <1,00> <1,00> 13 13 <1,000> <1,000>
Prueba "FormatNumber(1, 1, ?, -1, -1)" '> <1,0> <1,0> 13 13 <1,0> <1,0>
Prueba "FormatNumber(1, 1, -1, ?, -1)" '> <1,0> <1,0> 13 13 <1,0> <1,0>
Prueba "FormatNumber(1, 1, -1, -1, ?)" '> <1,0> <1,0> 13 13 <1,0> <1,0>
Prueba "FormatPercent(?, 1, -1, -1, -1)" '> <200,0%> <(100,0%)> 13 13 <300,0%> <300,0%>
Prueba "FormatPercent(1, ?, -1, -1, -1)" '> <100,00%> <100,00%> 13 13 <100,000%> <100,000%>
Prueba "FormatPercent(1, 1, ?, -1, -1)" '> <100,0%> <100,0%> 13 13 <100,0%> <100,0%>
Prueba "FormatPercent(1, 1, -1, ?, -1)" '> <100,0%> <100,0%> 13 13 <100,0%> <100,0%>
Prueba "FormatPercent(1, 1, -1, -1, ?)" '> <100,0%> <100,0%> 13 13 <100,0%> <100,0%>
Prueba "Hex(?)" '> <2> <FFFFFFFF> 13 13 <3> <3>
Prueba "Hour(?)" '> <0> <0> 13 13 <0> <0>
Prueba "InStr(?, ""a"", ""a"", 0)" '> <0> 5 13 13 <0> <0>
Prueba "InStr(1, ?, ""a"", 0)" '> <0> <0> <0> <0> <0> <0>
Prueba "InStr(1, ""a"", ?, 0)" '> <0> <0> <0> <1> <0> <0>
Prueba "InStr(1, ""a"", ""a"", ?)" '> 5 5 13 13 5 5
Prueba "InStrB(?, ""a"", ""a"", 0)" '> <0> 5 13 13 <0> <0>
Prueba "InStrB(1, ?, ""a"", 0)" '> <0> <0> <0> <0> <0> <0>
Prueba "InStrB(1, ""a"", ?, 0)" '> <0> <0> <0> <1> <0> <0>
Prueba "InStrB(1, ""a"", ""a"", ?)" '> 5 5 13 13 5 5
Prueba "InStrRev(?, ""a"", 1, 0)" '> <0> <0> <0> <0> <0> <0>
Prueba "InStrRev(""a"", ?, 1, 0)" '> <0> <0> <0> <1> <0> <0>
Prueba "InStrRev(""a"", ""a"", ?, 0)" '> <0> <1> 13 13 <0> <0>
Prueba "InStrRev(""a"", ""a"", 1, ?)" '> 5 5 13 13 5 5
Prueba "Int(?)" '> <2> <-1> 13 13 <3> <02/01/1900>
Prueba "Join(?, "","")" '> 13 13 13 13 13 13
Prueba "Join(Array(""a""), ?)" '> <a> <a> <a> <a> <a> <a>
Prueba "LBound(?, 1)" '> 13 13 13 13 13 13
Prueba "LBound(Array(1), ?)" '> 9 9 13 13 9 9
Prueba "LCase(?)" '> <2> <-1> <x> <> < 3 > <02/01/1900>
Prueba "Left(?, 1)" '> <2> <-> <x> <> < > <0>
Prueba "Left(""a"", ?)" '> <a> 5 13 13 <a> <a>
Prueba "LeftB(""a"", ?)" '> <a> 5 13 13 <a> <a>
Prueba "Len(?)" '> <1> <2> <1> <0> <3> <10>
Prueba "LenB(?)" '> <2> <4> <2> <0> <6> <20>
Prueba "Log(?)" '> <0,693147180559945> 5 13 13 <1,09861228866811> <1,09861228866811>
Prueba "LTrim(?)" '> <2> <-1> <x> <> <3 > <02/01/1900>
Prueba "Mid(?, 1, 1)" '> <2> <-> <x> <> < > <0>
Prueba "Mid(""a"", ?, 1)" '> <> 5 13 13 <> <>
Prueba "Mid(""a"", 1, ?)" '> <a> 5 13 13 <a> <a>
Prueba "MidB(""a"", 1, ?)" '> <a> 5 13 13 <a> <a>
Prueba "Minute(?)" '> <0> <0> 13 13 <0> <0>
Prueba "Month(?)" '> <1> <12> 13 13 <1> <1>
Prueba "MonthName(?, False)" '> <febrero> 5 13 13 <marzo> <marzo>
Prueba "MonthName(1, ?)" '> <ene> <ene> 13 13 <ene> <ene>
Prueba "Oct(?)" '> <2> <37777777777> 13 13 <3> <3>
Prueba "Replace(?, ""a"", ""b"", 1, -1, 0)" '> <2> <-1> <x> <> < 3 > <02/01/1900>
Prueba "Replace(""a"", ?, ""b"", 1, -1, 0)" '> <a> <a> <a> <a> <a> <a>
Prueba "Replace(""a"", ""a"", ?, 1, -1, 0)" '> <2> <-1> <x> <> < 3 > <02/01/1900>
Prueba "Replace(""a"", ""a"", ""b"", ?, -1, 0)" '> <> 5 13 13 <> <>
Prueba "Replace(""a"", ""a"", ""b"", 1, ?, 0)" '> <b> <b> 13 13 <b> <b>
Prueba "Replace(""a"", ""a"", ""b"", 1, -1, ?)" '> 5 5 13 13 5 5
Prueba "RGB(?, 1, 1)" '> <65794> 5 13 13 <65795> <65795>
Prueba "RGB(1, ?, 1)" '> <66049> 5 13 13 <66305> <66305>
Prueba "RGB(1, 1, ?)" '> <131329> 5 13 13 <196865> <196865>
Prueba "Right(?, 1)" '> <2> <1> <x> <> < > <0>
Prueba "Right(""a"", ?)" '> <a> 5 13 13 <a> <a>
Prueba "RightB(""a"", ?)" '> <a> 5 13 13 <a> <a>
Prueba "Round(?, 1)" '> <2> <-1> 13 13 <3> <3>
Prueba "Round(1.5, ?)" '> <1,5> 5 13 13 <1,5> <1,5>
Prueba "RTrim(?)" '> <2> <-1> <x> <> < 3> <02/01/1900>
Prueba "Second(?)" '> <0> <0> 13 13 <0> <0>
Prueba "Sgn(?)" '> <1> <-1> 13 13 <1> <1>
Prueba "Sin(?)" '> <0,909297426825682> <-0,841470984807897> 13 13 <0,141120008059867> <0,141120008059867>
Prueba "Space(?)" '> <  > 5 13 13 <   > <   >
Prueba "Split(?, "","", -1, 0)" '> Array(0) Array(0) Array(0) Array(-1) Array(0) Array(0)
Prueba "Split(""a"", ?, -1, 0)" '> Array(0) Array(0) Array(0) Array(0) Array(0) Array(0)
Prueba "Split(""a"", "","", ?, 0)" '> Array(0) Array(0) 13 13 Array(0) Array(0)
Prueba "Split(""a"", "","", -1, ?)" '> 5 5 13 13 5 5
Prueba "Sqr(?)" '> <1,4142135623731> 5 13 13 <1,73205080756888> <1,73205080756888>
Prueba "StrComp(?, ""a"", 0)" '> <-1> <-1> <1> <-1> <-1> <-1>
Prueba "StrComp(""a"", ?, 0)" '> <1> <1> <-1> <1> <1> <1>
Prueba "StrComp(""a"", ""a"", ?)" '> 5 5 13 13 5 5
Prueba "String(?, ""a"")" '> <aa> 5 13 13 <aaa> <aaa>
Prueba "StrReverse(?)" '> <2> <1-> <x> <> < 3 > <0091/10/20>
Prueba "Tan(?)" '> <-2,18503986326152> <-1,5574077246549> 13 13 <-0,142546543074278> <-0,142546543074278>
Prueba "TimeSerial(?, 1, 1)" '> <2:01:01> <0:58:59> 13 13 <3:01:01> <3:01:01>
Prueba "TimeSerial(1, ?, 1)" '> <1:02:01> <0:59:01> 13 13 <1:03:01> <1:03:01>
Prueba "TimeSerial(1, 1, ?)" '> <1:01:02> <1:00:59> 13 13 <1:01:03> <1:01:03>
Prueba "TimeValue(?)" '> 13 13 13 13 13 <0:00:00>
Prueba "Trim(?)" '> <2> <-1> <x> <> <3> <02/01/1900>
Prueba "UBound(?, 1)" '> 13 13 13 13 13 13
Prueba "UBound(Array(1), ?)" '> 9 9 13 13 9 9
Prueba "UCase(?)" '> <2> <-1> <X> <> < 3 > <02/01/1900>
Prueba "Unescape(?)" '> <2> <-1> <x> <> < 3 > <02/01/1900>
Prueba "Weekday(?, 1)" '> <2> <6> 13 13 <3> <3>
Prueba "Weekday(1, ?)" '> <7> 5 13 13 <6> <6>
Prueba "WeekdayName(?, False, 1)" '> <lunes> 5 13 13 <martes> <martes>
Prueba "WeekdayName(1, ?, 1)" '> <dom> <dom> 13 13 <dom> <dom>
Prueba "WeekdayName(1, False, ?)" '> <lunes> 5 13 13 <martes> <martes>
Prueba "Year(?)" '> <1900> <1899> 13 13 <1900> <1900>
Prueba "TypeName(?)" '> <String> <String> <String> <String> <String> <Date>
Prueba "VarType(?)" '> <8> <8> <8> <8> <8> <7>
Prueba "IsNumeric(?)" '> <True> <True> <False> <False> <True> <False>
Prueba "IsDate(?)" '> <False> <False> <False> <False> <False> <True>

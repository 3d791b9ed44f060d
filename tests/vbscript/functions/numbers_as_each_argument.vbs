' Negative, zero, huge and fractional numbers and True as each argument of each function.
' Each line: what every value gives in place of the question mark; a number alone is that of the error.
valores = Array("-1", "0", "1E10", "2.5", "1.5", "0.5", "True")
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
Prueba "Abs(?)" '> <1> <0> <10000000000> <2,5> <1,5> <0,5> <1>
Prueba "Asc(?)" '> <45> <48> <49> <50> <49> <48> <84>
Prueba "AscB(?)" '> <45> <48> <49> <50> <49> <48> <84>
Prueba "AscW(?)" '> <45> <48> <49> <50> <49> <48> <84>
Prueba "Atn(?)" '> <-0,785398163397448> <0> <1,5707963266949> <1,19028994968253> <0,982793723247329> <0,463647609000806> <-0,785398163397448>
Prueba "CBool(?)" '> <True> <False> <True> <True> <True> <True> <True>
Prueba "CByte(?)" '> 6 <0> 6 <2> <2> <0> <255>
Prueba "CCur(?)" '> <-1> <0> <10000000000> <2,5> <1,5> <0,5> <-1>
Prueba "CDate(?)" '> <29/12/1899> <0:00:00> 6 <01/01/1900 12:00:00> <31/12/1899 12:00:00> <12:00:00> <29/12/1899>
Prueba "CDbl(?)" '> <-1> <0> <10000000000> <2,5> <1,5> <0,5> <-1>
Prueba "CInt(?)" '> <-1> <0> 6 <2> <2> <0> <-1>
Prueba "CLng(?)" '> <-1> <0> 6 <2> <2> <0> <-1>
Prueba "Cos(?)" '> <0,54030230586814> <1> <0,873119622676856> <-0,801143615546934> <7,07372016677029E-02> <0,877582561890373> <0,54030230586814>
Prueba "CSng(?)" '> <-1> <0> <1E+10> <2,5> <1,5> <0,5> <-1>
Prueba "CStr(?)" '> <-1> <0> <10000000000> <2,5> <1,5> <0,5> <True>
Prueba "DateAdd(?, 1, DateSerial(2020,1,1))" '> 5 5 5 5 5 5 5
Prueba "DateAdd(""d"", ?, DateSerial(2020,1,1))" '> <31/12/2019> <01/01/2020> 5 <03/01/2020> <03/01/2020> <01/01/2020> <31/12/2019>
Prueba "DateAdd(""d"", 1, ?)" '> <0:00:00> <31/12/1899> 6 <02/01/1900 12:00:00> <01/01/1900 12:00:00> <31/12/1899 12:00:00> <0:00:00>
Prueba "DateDiff(?, DateSerial(2020,1,1), DateSerial(2020,1,2), 1, 1)" '> 5 5 5 5 5 5 5
Prueba "DateDiff(""d"", ?, DateSerial(2020,1,2), 1, 1)" '> <43833> <43832> 6 <43830> <43831> <43832> <43833>
Prueba "DateDiff(""d"", DateSerial(2020,1,1), ?, 1, 1)" '> <-43832> <-43831> 6 <-43829> <-43830> <-43831> <-43832>
Prueba "DateDiff(""d"", DateSerial(2020,1,1), DateSerial(2020,1,2), ?, 1)" '> 5 <1> 6 <1> <1> <1> 5
Prueba "DateDiff(""d"", DateSerial(2020,1,1), DateSerial(2020,1,2), 1, ?)" '> 5 <1> 6 <1> <1> <1> 5
Prueba "DatePart(?, DateSerial(2020,1,1), 1, 1)" '> 5 5 5 5 5 5 5
Prueba "DatePart(""d"", ?, 1, 1)" '> <29> <30> 6 <1> <31> <30> <29>
Prueba "DatePart(""d"", DateSerial(2020,1,1), ?, 1)" '> 5 <1> 6 <1> <1> <1> 5
Prueba "DatePart(""d"", DateSerial(2020,1,1), 1, ?)" '> 5 <1> 6 <1> <1> <1> 5
Prueba "DateSerial(?, 1, 1)" '> 5 <01/01/2000> 6 <01/01/2002> <01/01/2002> <01/01/2000> 5
Prueba "DateSerial(2020, ?, 1)" '> <01/11/2019> <01/12/2019> 6 <01/02/2020> <01/02/2020> <01/12/2019> <01/11/2019>
Prueba "DateSerial(2020, 1, ?)" '> <30/12/2019> <31/12/2019> 6 <02/01/2020> <02/01/2020> <31/12/2019> <30/12/2019>
Prueba "DateValue(?)" '> 13 13 13 13 13 13 13
Prueba "Day(?)" '> <29> <30> 6 <1> <31> <30> <29>
Prueba "Exp(?)" '> <0,367879441171442> <1> 6 <12,1824939607035> <4,48168907033806> <1,64872127070013> <0,367879441171442>
Prueba "Filter(?, ""a"", True, 0)" '> 13 13 13 13 13 13 13
Prueba "Filter(Array(""a""), ?, True, 0)" '> Array(-1) Array(-1) Array(-1) Array(-1) Array(-1) Array(-1) Array(-1)
Prueba "Filter(Array(""a""), ""a"", ?, 0)" '> Array(0) Array(-1) Array(0) Array(0) Array(0) Array(0) Array(0)
Prueba "Filter(Array(""a""), ""a"", True, ?)" '> 5 Array(0) 6 5 5 Array(0) 5
Prueba "Fix(?)" '> <-1> <0> <10000000000> <2> <1> <0> <-1>
Prueba "FormatCurrency(?, 1, -1, -1, -1)" '> <(1,0 €)> <0,0 €> <10.000.000.000,0 €> <2,5 €> <1,5 €> <0,5 €> <(1,0 €)>
Prueba "FormatCurrency(1, ?, -1, -1, -1)" '> <1,00 €> <1 €> 6 <1,00 €> <1,00 €> <1 €> <1,00 €>
Prueba "FormatCurrency(1, 1, ?, -1, -1)" '> <1,0 €> <1,0 €> 6 <1,0 €> <1,0 €> <1,0 €> <1,0 €>
Prueba "FormatCurrency(1, 1, -1, ?, -1)" '> <1,0 €> <1,0 €> 6 <1,0 €> <1,0 €> <1,0 €> <1,0 €>
Prueba "FormatCurrency(1, 1, -1, -1, ?)" '> <1,0 €> <1,0 €> 6 <1,0 €> <1,0 €> <1,0 €> <1,0 €>
Prueba "FormatDateTime(?, 1)" '> <viernes, 29 de diciembre de 1899> <sábado, 30 de diciembre de 1899> 6 <lunes, 1 de enero de 1900> <domingo, 31 de diciembre de 1899> <sábado, 30 de diciembre de 1899> <viernes, 29 de diciembre de 1899>
Prueba "FormatDateTime(1, ?)" '> 5 <31/12/1899> 6 <31/12/1899> <31/12/1899> <31/12/1899> 5
Prueba "FormatNumber(?, 1, -1, -1, -1)" '> <(1,0)> <0,0> <10.000.000.000,0> <2,5> <1,5> <0,5> <(1,0)>
Prueba "FormatNumber(1, ?, -1, -1, -1)" '> <1,00> <1> 6 <1,00> <1,00> <1> <1,00>
Prueba "FormatNumber(1, 1, ?, -1, -1)" '> <1,0> <1,0> 6 <1,0> <1,0> <1,0> <1,0>
Prueba "FormatNumber(1, 1, -1, ?, -1)" '> <1,0> <1,0> 6 <1,0> <1,0> <1,0> <1,0>
Prueba "FormatNumber(1, 1, -1, -1, ?)" '> <1,0> <1,0> 6 <1,0> <1,0> <1,0> <1,0>
Prueba "FormatPercent(?, 1, -1, -1, -1)" '> <(100,0%)> <0,0%> <1.000.000.000.000,0%> <250,0%> <150,0%> <50,0%> <(100,0%)>
Prueba "FormatPercent(1, ?, -1, -1, -1)" '> <100,00%> <100%> 6 <100,00%> <100,00%> <100%> <100,00%>
Prueba "FormatPercent(1, 1, ?, -1, -1)" '> <100,0%> <100,0%> 6 <100,0%> <100,0%> <100,0%> <100,0%>
Prueba "FormatPercent(1, 1, -1, ?, -1)" '> <100,0%> <100,0%> 6 <100,0%> <100,0%> <100,0%> <100,0%>
Prueba "FormatPercent(1, 1, -1, -1, ?)" '> <100,0%> <100,0%> 6 <100,0%> <100,0%> <100,0%> <100,0%>
Prueba "Hex(?)" '> <FFFF> <0> 6 <2> <2> <0> <FFFF>
Prueba "Hour(?)" '> <0> <0> 6 <12> <12> <12> <0>
Prueba "InStr(?, ""a"", ""a"", 0)" '> 5 5 6 <0> <0> 5 5
Prueba "InStr(1, ?, ""a"", 0)" '> <0> <0> <0> <0> <0> <0> <0>
Prueba "InStr(1, ""a"", ?, 0)" '> <0> <0> <0> <0> <0> <0> <0>
Prueba "InStr(1, ""a"", ""a"", ?)" '> 5 <1> 6 5 5 <1> 5
Prueba "InStrB(?, ""a"", ""a"", 0)" '> 5 5 6 <0> <0> 5 5
Prueba "InStrB(1, ?, ""a"", 0)" '> <0> <0> <0> <0> <0> <0> <0>
Prueba "InStrB(1, ""a"", ?, 0)" '> <0> <0> <0> <0> <0> <0> <0>
Prueba "InStrB(1, ""a"", ""a"", ?)" '> 5 <1> 6 5 5 <1> 5
Prueba "InStrRev(?, ""a"", 1, 0)" '> <0> <0> <0> <0> <0> <0> <0>
Prueba "InStrRev(""a"", ?, 1, 0)" '> <0> <0> <0> <0> <0> <0> <0>
Prueba "InStrRev(""a"", ""a"", ?, 0)" '> <1> 5 6 <0> <0> 5 <1>
Prueba "InStrRev(""a"", ""a"", 1, ?)" '> 5 <1> 6 5 5 <1> 5
Prueba "Int(?)" '> <-1> <0> <10000000000> <2> <1> <0> <-1>
Prueba "Join(?, "","")" '> 13 13 13 13 13 13 13
Prueba "Join(Array(""a""), ?)" '> <a> <a> <a> <a> <a> <a> <a>
Prueba "LBound(?, 1)" '> 13 13 13 13 13 13 13
Prueba "LBound(Array(1), ?)" '> 9 9 6 9 9 9 9
Prueba "LCase(?)" '> <-1> <0> <10000000000> <2,5> <1,5> <0,5> <true>
Prueba "Left(?, 1)" '> <-> <0> <1> <2> <1> <0> <T>
Prueba "Left(""a"", ?)" '> 5 <> 6 <a> <a> <> 5
Prueba "LeftB(""a"", ?)" '> 5 <> 6 <a> <a> <> 5
Prueba "Len(?)" '> <2> <1> <11> <3> <3> <3> <4>
Prueba "LenB(?)" '> <4> <2> <22> <6> <6> <6> <8>
Prueba "Log(?)" '> 5 5 <23,0258509299405> <0,916290731874155> <0,405465108108164> <-0,693147180559945> 5
Prueba "Mid(?, 1, 1)" '> <-> <0> <1> <2> <1> <0> <T>
Prueba "Mid(""a"", ?, 1)" '> 5 5 6 <> <> 5 5
Prueba "Mid(""a"", 1, ?)" '> 5 <> 6 <a> <a> <> 5
Prueba "MidB(""a"", 1, ?)" '> 5 <> 6 <a> <a> <> 5
Prueba "Minute(?)" '> <0> <0> 6 <0> <0> <0> <0>
Prueba "Month(?)" '> <12> <12> 6 <1> <12> <12> <12>
Prueba "MonthName(?, False)" '> 5 5 6 <febrero> <febrero> 5 5
Prueba "MonthName(1, ?)" '> <ene> <enero> <ene> <ene> <ene> <ene> <ene>
Prueba "Oct(?)" '> <177777> <0> 6 <2> <2> <0> <177777>
Prueba "Replace(?, ""a"", ""b"", 1, -1, 0)" '> <-1> <0> <10000000000> <2,5> <1,5> <0,5> <True>
Prueba "Replace(""a"", ?, ""b"", 1, -1, 0)" '> <a> <a> <a> <a> <a> <a> <a>
Prueba "Replace(""a"", ""a"", ?, 1, -1, 0)" '> <-1> <0> <10000000000> <2,5> <1,5> <0,5> <True>
Prueba "Replace(""a"", ""a"", ""b"", ?, -1, 0)" '> 5 5 6 <> <> 5 5
Prueba "Replace(""a"", ""a"", ""b"", 1, ?, 0)" '> <b> <a> 6 <b> <b> <a> <b>
Prueba "Replace(""a"", ""a"", ""b"", 1, -1, ?)" '> 5 <b> 6 5 5 <b> 5
Prueba "RGB(?, 1, 1)" '> 5 <65792> 6 <65794> <65794> <65792> 5
Prueba "RGB(1, ?, 1)" '> 5 <65537> 6 <66049> <66049> <65537> 5
Prueba "RGB(1, 1, ?)" '> 5 <257> 6 <131329> <131329> <257> 5
Prueba "Right(?, 1)" '> <1> <0> <0> <5> <5> <5> <e>
Prueba "Right(""a"", ?)" '> 5 <> 6 <a> <a> <> 5
Prueba "RightB(""a"", ?)" '> 5 <> 6 <a> <a> <> 5
Prueba "Round(?, 1)" '> <-1> <0> <10000000000> <2,5> <1,5> <0,5> <True>
Prueba "Round(1.5, ?)" '> 5 <2> 6 <1,5> <1,5> <2> 5
Prueba "Second(?)" '> <0> <0> 6 <0> <0> <0> <0>
Prueba "Sgn(?)" '> <-1> <0> <1> <1> <1> <1> <-1>
Prueba "Sin(?)" '> <-0,841470984807897> <0> <-0,487506025087511> <0,598472144103957> <0,997494986604054> <0,479425538604203> <-0,841470984807897>
Prueba "Space(?)" '> 5 <> 6 <  > <  > <> 5
Prueba "Split(?, "","", -1, 0)" '> Array(0) Array(0) Array(0) Array(1) Array(1) Array(1) Array(0)
Prueba "Split(""a"", ?, -1, 0)" '> Array(0) Array(0) Array(0) Array(0) Array(0) Array(0) Array(0)
Prueba "Split(""a"", "","", ?, 0)" '> Array(0) Array(-1) 6 Array(0) Array(0) Array(-1) Array(0)
Prueba "Split(""a"", "","", -1, ?)" '> 5 Array(0) 6 5 5 Array(0) 5
Prueba "Sqr(?)" '> 5 <0> <100000> <1,58113883008419> <1,22474487139159> <0,707106781186548> 5
Prueba "StrComp(?, ""a"", 0)" '> <-1> <-1> <-1> <-1> <-1> <-1> <-1>
Prueba "StrComp(""a"", ?, 0)" '> <1> <1> <1> <1> <1> <1> <1>
Prueba "StrComp(""a"", ""a"", ?)" '> 5 <0> 6 5 5 <0> 5
Prueba "String(?, ""a"")" '> 5 <> 6 <aa> <aa> <> 5
Prueba "StrReverse(?)" '> <1-> <0> <00000000001> <5,2> <5,1> <5,0> <eurT>
Prueba "Tan(?)" '> <-1,5574077246549> <0> <-0,558349637811242> <-0,74702229723866> <14,1014199471717> <0,54630248984379> <-1,5574077246549>
Prueba "TimeSerial(?, 1, 1)" '> <0:58:59> <0:01:01> 6 <2:01:01> <2:01:01> <0:01:01> <0:58:59>
Prueba "TimeSerial(1, ?, 1)" '> <0:59:01> <1:00:01> 6 <1:02:01> <1:02:01> <1:00:01> <0:59:01>
Prueba "TimeSerial(1, 1, ?)" '> <1:00:59> <1:01:00> 6 <1:01:02> <1:01:02> <1:01:00> <1:00:59>
Prueba "TimeValue(?)" '> 13 13 13 13 13 13 13
Prueba "Trim(?)" '> <-1> <0> <10000000000> <2,5> <1,5> <0,5> <True>
Prueba "UBound(?, 1)" '> 13 13 13 13 13 13 13
Prueba "UBound(Array(1), ?)" '> 9 9 6 9 9 9 9
Prueba "UCase(?)" '> <-1> <0> <10000000000> <2,5> <1,5> <0,5> <TRUE>
Prueba "Weekday(?, 1)" '> <6> <7> 6 <2> <1> <7> <6>
Prueba "Weekday(1, ?)" '> 5 <7> 6 <7> <7> <7> 5
Prueba "WeekdayName(?, False, 1)" '> 5 5 6 <lunes> <lunes> 5 5
Prueba "WeekdayName(1, ?, 1)" '> <dom> <domingo> <dom> <dom> <dom> <dom> <dom>
Prueba "WeekdayName(1, False, ?)" '> 5 <lunes> 6 <lunes> <lunes> <lunes> 5
Prueba "Year(?)" '> <1899> <1899> 6 <1900> <1899> <1899> <1899>
Prueba "IsNumeric(?)" '> <True> <True> <True> <True> <True> <True> <True>
Prueba "IsDate(?)" '> <False> <False> <False> <False> <False> <False> <False>

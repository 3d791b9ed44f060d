' Fewer or more arguments than a function takes: 450; the least and the most it takes are no such error.
' (MsgBox, InputBox, SetLocale and Randomize have files of their own.)
funciones = funciones & "Abs 1 1; Array 0 99; Asc 1 1; AscB 1 1; AscW 1 1; Atn 1 1; CBool 1 1; CByte 1 1"
funciones = funciones & "; CCur 1 1; CDate 1 1; CDbl 1 1; Chr 1 1; ChrB 1 1; ChrW 1 1; CInt 1 1; CLng 1 1"
funciones = funciones & "; Cos 1 1; CreateObject 1 2; CSng 1 1; CStr 1 1; Date 0 0; DateAdd 3 3; DateDiff 3 5; DatePart 2 4"
funciones = funciones & "; DateSerial 3 3; DateValue 1 1; Day 1 1; Escape 1 1; Exp 1 1; Filter 2 4; Fix 1 1; FormatCurrency 1 5"
funciones = funciones & "; FormatDateTime 1 2; FormatNumber 1 5; FormatPercent 1 5; GetLocale 0 0; GetObject 0 2; Hex 1 1; Hour 1 1; InStr 2 4"
funciones = funciones & "; InStrB 2 4; InStrRev 2 4; Int 1 1; IsArray 1 1; IsDate 1 1; IsEmpty 1 1; IsNull 1 1; IsNumeric 1 1"
funciones = funciones & "; IsObject 1 1; Join 1 2; LBound 1 2; LCase 1 1; Left 2 2; LeftB 2 2; Len 1 1; LenB 1 1"
funciones = funciones & "; LoadPicture 1 1; Log 1 1; LTrim 1 1; Mid 2 3; MidB 2 3; Minute 1 1; Month 1 1; MonthName 1 2"
funciones = funciones & "; Now 0 0; Oct 1 1; Replace 3 6; RGB 3 3; Right 2 2; RightB 2 2; Rnd 0 1; Round 1 2"
funciones = funciones & "; RTrim 1 1; ScriptEngine 0 0; ScriptEngineBuildVersion 0 0; ScriptEngineMajorVersion 0 0; ScriptEngineMinorVersion 0 0; Second 1 1; Sgn 1 1; Sin 1 1"
funciones = funciones & "; Space 1 1; Split 1 4; Sqr 1 1; StrComp 2 3; String 2 2; StrReverse 1 1; Tan 1 1; Time 0 0"
funciones = funciones & "; Timer 0 0; TimeSerial 3 3; TimeValue 1 1; Trim 1 1; TypeName 1 1; UBound 1 2; UCase 1 1; Unescape 1 1"
funciones = funciones & "; VarType 1 1; Weekday 1 2; WeekdayName 1 3; Year 1 1"
funciones = Split(funciones, "; ")
For Each fila In funciones
  campos = Split(fila, " ")
  menos = CInt(campos(1)) : mas = CInt(campos(2))
  If menos > 0 Then
    If Numero(Llamada(campos(0), menos - 1)) <> 450 Then WScript.Echo fila, "acepta", menos - 1
  End If
  If mas < 99 Then
    If Numero(Llamada(campos(0), mas + 1)) <> 450 Then WScript.Echo fila, "acepta", mas + 1
    If Numero(Llamada(campos(0), mas)) = 450 Then WScript.Echo fila, "no acepta", mas
  End If
  If Numero(Llamada(campos(0), menos)) = 450 Then WScript.Echo fila, "no acepta", menos
Next
WScript.Echo UBound(funciones) + 1, Numero("Abs()"), Numero("Abs(1, 2)"), Numero("Abs(1)") '> 100 450 450 0
Function Llamada(nombre, cuantos)
  Dim i, s
  For i = 1 To cuantos
    s = s & ", 1"
  Next
  Llamada = nombre & "(" & Mid(s, 3) & ")"
End Function
Function Numero(texto)
  On Error Resume Next
  Dim x
  x = Eval(texto)
  Numero = Err.Number
End Function

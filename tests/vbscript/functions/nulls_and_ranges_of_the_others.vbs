Sub T(s)
  On Error Resume Next
  Dim v
  v = Eval(s)
  If Err.Number <> 0 Then
    v = "error " & Err.Number
  ElseIf IsNull(v) Then
    v = "Null"
  Else
    v = TypeName(v) & " " & v
  End If
  WScript.Echo s, "=", v
End Sub
T "Escape(Null)" '> Escape(Null) = error 94
T "Unescape(Null)" '> Unescape(Null) = error 94
T "Escape(Empty)" '> Escape(Empty) = String |
T "ChrB(300)" '> ChrB(300) = error 6
T "ChrB(-1)" '> ChrB(-1) = error 6
T "ChrB(Null)" '> ChrB(Null) = error 94
T "AscB("""")" '> AscB("") = error 5
T "AscB(Null)" '> AscB(Null) = error 94
T "Asc(Null)" '> Asc(Null) = error 94
T "AscW(Null)" '> AscW(Null) = error 94
T "Chr(Null)" '> Chr(Null) = error 94
T "ChrW(Null)" '> ChrW(Null) = error 94
T "ChrW(65536)" '> ChrW(65536) = error 5
T "ChrW(-32769)" '> ChrW(-32769) = error 5
T "Chr(256)" '> Chr(256) = error 5
T "Hex(Null)" '> Hex(Null) = Null
T "Oct(Null)" '> Oct(Null) = Null
T "Hex("""")" '> Hex("") = error 13
T "RGB(Null,1,1)" '> RGB(Null,1,1) = error 94
T "RGB(-1,1,1)" '> RGB(-1,1,1) = error 5
T "Sqr(Null)" '> Sqr(Null) = error 94
T "Log(Null)" '> Log(Null) = error 94
T "Sqr(-1)" '> Sqr(-1) = error 5
T "Exp(Null)" '> Exp(Null) = error 94
T "Sin(Null)" '> Sin(Null) = error 94
T "Rnd(Null)" '> Rnd(Null) = error 94
T "IsNumeric(Null)" '> IsNumeric(Null) = Boolean False
T "IsDate(Null)" '> IsDate(Null) = Boolean False
T "VarType(Null)" '> VarType(Null) = Integer 1
T "SetLocale(Null)" '> SetLocale(Null) = error 94
T "SetLocale(99999)" '> SetLocale(99999) = error 447
T "Eval(Null)" '> Eval(Null) = Null
T "Eval(2.5)" '> Eval(2.5) = Double 2,5
T "Round(2.5,-1)" '> Round(2.5,-1) = error 5

' The numbers are looked at before a Null text is let through.
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
T "Mid(""road"",""x"",Null)" '> Mid("road","x",Null) = error 94
T "Mid(""road"",0,Null)" '> Mid("road",0,Null) = error 94
T "Mid(Null,-2,-2)" '> Mid(Null,-2,-2) = error 5
T "Mid(Null,4,1)" '> Mid(Null,4,1) = Null
T "Mid(Null,0)" '> Mid(Null,0) = error 5
T "Mid(Null,1)" '> Mid(Null,1) = Null
T "Mid(Null,Null)" '> Mid(Null,Null) = error 94
T "Left(Null,-1)" '> Left(Null,-1) = error 5
T "Left(Null,1)" '> Left(Null,1) = Null
T "Left(""a"",Null)" '> Left("a",Null) = error 94
T "Left(Null,Null)" '> Left(Null,Null) = error 94
T "Right(Null,-1)" '> Right(Null,-1) = error 5
T "Right(Null,1)" '> Right(Null,1) = Null
T "Right(""a"",Null)" '> Right("a",Null) = error 94
T "LeftB(Null,-1)" '> LeftB(Null,-1) = error 5
T "RightB(Null,-1)" '> RightB(Null,-1) = error 5
T "MidB(Null,0)" '> MidB(Null,0) = error 5
T "MidB(Null,1)" '> MidB(Null,1) = Null
T "MidB(""a"",Null)" '> MidB("a",Null) = error 94
T "LeftB(""a"",Null)" '> LeftB("a",Null) = error 94
T "InStr(Null,""a"",""b"")" '> InStr(Null,"a","b") = error 94
T "InStr(0,Null,""b"")" '> InStr(0,Null,"b") = error 5
T "InStr(Null,""a"")" '> InStr(Null,"a") = Null
T "InStr(""a"",Null)" '> InStr("a",Null) = Null
T "InStr(1,""a"",""b"",Null)" '> InStr(1,"a","b",Null) = error 94
T "InStr(0,""a"",""b"")" '> InStr(0,"a","b") = error 5
T "InStrB(Null,""a"")" '> InStrB(Null,"a") = Null
T "InStrB(0,Null,""a"")" '> InStrB(0,Null,"a") = error 5
T "InStrRev(Null,""a"")" '> InStrRev(Null,"a") = error 94
T "InStrRev(""a"",Null)" '> InStrRev("a",Null) = error 94
T "InStrRev(""a"",""a"",Null)" '> InStrRev("a","a",Null) = error 94
T "InStrRev(""a"",""a"",-1,Null)" '> InStrRev("a","a",-1,Null) = error 94
T "InStrRev(""a"",""a"",0)" '> InStrRev("a","a",0) = error 5
T "InStrRev(Null,""a"",0)" '> InStrRev(Null,"a",0) = error 94
T "String(Null,""a"")" '> String(Null,"a") = Null
T "String(-1,Null)" '> String(-1,Null) = error 5
T "String(2,Null)" '> String(2,Null) = Null
T "String(-1,""a"")" '> String(-1,"a") = error 5
T "Space(Null)" '> Space(Null) = error 94
T "Space(-1)" '> Space(-1) = error 5
T "Replace(Null,""a"",""b"")" '> Replace(Null,"a","b") = error 94
T "Replace(""a"",Null,""b"")" '> Replace("a",Null,"b") = error 94
T "Replace(""a"",""a"",Null)" '> Replace("a","a",Null) = error 94
T "Replace(""a"",""a"",""b"",0)" '> Replace("a","a","b",0) = error 5
T "Replace(""a"",""a"",""b"",Null)" '> Replace("a","a","b",Null) = error 94
T "Replace(""a"",""a"",""b"",1,Null)" '> Replace("a","a","b",1,Null) = error 94
T "Replace(""a"",""a"",""b"",1,-2)" '> Replace("a","a","b",1,-2) = error 5
T "StrComp(Null,""a"")" '> StrComp(Null,"a") = Null
T "StrComp(""a"",""a"",Null)" '> StrComp("a","a",Null) = error 94
T "StrReverse(Null)" '> StrReverse(Null) = error 94
T "LCase(Null)" '> LCase(Null) = Null
T "UCase(Null)" '> UCase(Null) = Null
T "Trim(Null)" '> Trim(Null) = Null
T "LTrim(Null)" '> LTrim(Null) = Null
T "RTrim(Null)" '> RTrim(Null) = Null

' Five has a default value, Bare has none, and Nothing is no object: as a value 91, with a member 424.
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
Class Five : Public Default Property Get V : V = "5" : End Property : End Class
Class Bare : Public x : End Class
Dim o, nn, ss, n, em
n = 7
Set o = New Bare
Set nn = Nothing
Set ss = New Five
T "CBool(ss)" '> CBool(ss) = Boolean True
T "CByte(ss)" '> CByte(ss) = Byte 5
T "CInt(ss)" '> CInt(ss) = Integer 5
T "CLng(ss)" '> CLng(ss) = Long 5
T "CSng(ss)" '> CSng(ss) = Single 5
T "CDbl(ss)" '> CDbl(ss) = Double 5
T "CCur(ss)" '> CCur(ss) = Currency 5
T "CStr(ss)" '> CStr(ss) = String 5
T "CDate(ss)" '> CDate(ss) = Date 04/01/1900
T "CLng(o)" '> CLng(o) = error 438
T "CLng(nn)" '> CLng(nn) = error 91
T "CStr(nn)" '> CStr(nn) = error 91
T "Abs(ss)" '> Abs(ss) = Double 5
T "Hex(ss)" '> Hex(ss) = String 5
T "Len(ss)" '> Len(ss) = Long 1
T "Len(nn)" '> Len(nn) = error 91
T "Len(o)" '> Len(o) = error 438
T "LCase(ss)" '> LCase(ss) = String 5
T "Left(ss,1)" '> Left(ss,1) = String 5
T "Left(""abc"",ss)" '> Left("abc",ss) = String abc
T "IsNumeric(ss)" '> IsNumeric(ss) = Boolean True
T "IsNumeric(o)" '> IsNumeric(o) = Boolean False
T "IsNumeric(nn)" '> IsNumeric(nn) = Boolean False
T "IsEmpty(ss)" '> IsEmpty(ss) = Boolean False
T "IsNull(ss)" '> IsNull(ss) = Boolean False
T "IsDate(ss)" '> IsDate(ss) = Boolean False
T "TypeName(ss)" '> TypeName(ss) = String Five
T "VarType(ss)" '> VarType(ss) = Integer 8
T "Array(ss)(0)" '> Array(ss)(0) = String 5
T "nn & ""x""" '> nn & "x" = error 91
T "-nn" '> -nn = error 91
T "nn + 1" '> nn + 1 = error 91
T "nn = 1" '> nn = 1 = error 91
T "nn And 1" '> nn And 1 = error 91
T "Not nn" '> Not nn = error 91
T "nn.Ring" '> nn.Ring = error 424
T "o.Ring" '> o.Ring = error 438
T "n.Ring" '> n.Ring = error 424
T "em.Ring" '> em.Ring = error 424
T "Null.Ring" '> Null.Ring = error 424

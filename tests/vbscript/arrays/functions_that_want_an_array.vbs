' What they say of something else; an object counts as its default value.
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
Class Trio_ : Public Default Function V : V = Array(6, 7, 8) : End Function : End Class
Class Five : Public Default Property Get V : V = "5" : End Property : End Class
Class Bare : Public x : End Class
Dim arr, d, o, nn, trio, ss
arr = Array(1)
Set d = CreateObject("Scripting.Dictionary")
Set o = New Bare
Set nn = Nothing
Set trio = New Trio_
Set ss = New Five
T "LBound(trio)" '> LBound(trio) = Long 0
T "UBound(trio)" '> UBound(trio) = Long 2
T "UBound(o)" '> UBound(o) = error 438
T "UBound(d)" '> UBound(d) = error 450
T "UBound(nn)" '> UBound(nn) = error 91
T "UBound(ss)" '> UBound(ss) = error 13
T "LBound(ss)" '> LBound(ss) = error 13
T "UBound(5)" '> UBound(5) = error 13
T "UBound(Null)" '> UBound(Null) = error 13
T "UBound(Empty)" '> UBound(Empty) = error 13
T "UBound(""a"")" '> UBound("a") = error 13
T "LBound(Null)" '> LBound(Null) = error 13
T "LBound(d)" '> LBound(d) = error 450
T "LBound(nn)" '> LBound(nn) = error 91
T "LBound(o)" '> LBound(o) = error 438
T "UBound(arr,2)" '> UBound(arr,2) = error 9
T "UBound(arr,0)" '> UBound(arr,0) = error 9
T "LBound(arr,2)" '> LBound(arr,2) = error 9
T "UBound(arr,Null)" '> UBound(arr,Null) = error 94
T "Join(Null)" '> Join(Null) = error 94
T "Join(o)" '> Join(o) = error 438
T "Join(5)" '> Join(5) = error 13
T "Join(nn)" '> Join(nn) = error 91
T "Join(d)" '> Join(d) = error 450
T "Join(trio)" '> Join(trio) = String 6 7 8
T "Join(Array(1,Null))" '> Join(Array(1,Null)) = error 13
T "Join(Array(1,Array(2)))" '> Join(Array(1,Array(2))) = error 13
T "Join(Array(),Null)" '> Join(Array(),Null) = error 94
T "Join(Array(1,2),Null)" '> Join(Array(1,2),Null) = error 94
T "Join(Empty)" '> Join(Empty) = error 13
T "Filter(Null,""s"")" '> Filter(Null,"s") = error 94
T "Filter(arr,Null)" '> Filter(arr,Null) = error 94
T "Filter(""l"",""s"")" '> Filter("l","s") = error 13
T "Filter(Array(""as"",Null),""s"")" '> Filter(Array("as",Null),"s") = error 13
T "Filter(arr,""1"",Null)" '> Filter(arr,"1",Null) = error 94
T "Filter(arr,""1"",True,Null)" '> Filter(arr,"1",True,Null) = error 94
T "Filter(nn,""7"")" '> Filter(nn,"7") = error 91
T "Split(Null)" '> Split(Null) = error 94
T "Split(""a b"",Null)" '> Split("a b",Null) = error 94
T "Split(""a b"","" "",Null)" '> Split("a b"," ",Null) = error 94
T "Split(arr)" '> Split(arr) = error 13
T "Split(""a"","" "",-1,Null)" '> Split("a"," ",-1,Null) = error 94

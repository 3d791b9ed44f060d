' The error of a statement a line.
SetLocale 1033
Dim r, n, v, t, o, p, d
Class Clock
 Public size, arr(2), dyn()
 Public owner_
 Private hidden
 Public Sub Tick : n = n + 1 : End Sub
 Public Function Tock(k) : Tock = k * 2 : End Function
 Public Default Property Get Def : Def = 42 : End Property
 Public Property Let owner(x) : n = TypeName(x) : End Property
 Public Property Get ro : ro = 5 : End Property
 Public Property Let wo(x) : n = x : End Property
 Public Property Set so(x) : Set owner_ = x : End Property
 Private Sub Priv : End Sub
 Public Property Get idx(i) : idx = i * 10 : End Property
 Public Property Let idx(i, x) : n = i & "/" & x : End Property
End Class
Class Plain : Public v : End Class
Class Trio : Public Default Function A : A = Array(6,7,8) : End Function : End Class
Set o = New Clock : o.size = 9
Set p = New Plain
Set d = CreateObject("Scripting.Dictionary")
Dim dd()
Dim fx(2)
Class Trio2 : Public Default Property Get A : A = 5 : End Property : End Class
Class ArgDef : Public Default Property Get A(i) : A = i : End Property : End Class
Sub Q(text)
    Dim told
    r = "?"
    On Error Resume Next
    Err.Clear
    ExecuteGlobal text
    told = "ok"
    If Err.Number <> 0 Then told = "error " & Err.Number
    Err.Clear
    If IsObject(r) Then
        told = told & " " & TypeName(r)
    ElseIf IsNull(r) Or IsEmpty(r) Or IsArray(r) Then
        told = told & " " & TypeName(r)
    ElseIf TypeName(r) <> "String" Then
        told = told & " " & TypeName(r) & " " & r
    ElseIf r <> "?" Then
        told = told & " " & r
    End If
    WScript.Echo told
End Sub
Q "Err.Raise 0" '> error 5
Q "Err.Raise 70000" '> error 5
Q "Err.Raise 65536" '> error 5
Q "Err.Raise 65535" '> error 65535
Q "Err.Raise -70" '> error -70
Q "Err.Raise 1e10" '> error 6
Q "Err.Raise ""x""" '> error 13
Q "Err.Raise" '> error 450
Q "Err.Raise vbObjectError + 1" '> error -2147221503
Q "Err.Raise Null" '> error 94
Q "Err.Raise 5.5" '> error 6
Q "With 5 : End With" '> error 424
Q "With ""x"" : End With" '> error 424
Q "With Empty : End With" '> error 424
Q "With Null : End With" '> error 424
Q "With Array(1) : End With" '> error 424
Q "With Nothing : End With" '> ok
Q "With Nothing : .x = 1 : End With" '> error 424
Q "v = 9 : For v = 1 To 5 \ 0 : Next" '> error 11
Q "On Error Resume Next : v = 9 : For v = 1 To 5 \ 0 : Next : r = v & "","" & Err.Number" '> error 92 9,92
Q "On Error Resume Next : v = 9 : For v = 1 \ 0 To 5 : Next : r = v & "","" & Err.Number" '> error 92 9,92
Q "On Error Resume Next : v = 9 : For v = 1 To 5 Step 1 \ 0 : Next : r = v & "","" & Err.Number" '> error 92 9,92
Q "On Error Resume Next : v = 9 : For v = 1 To ""x"" : k2 = k2 + 1 : Next : r = v & "","" & Err.Number & "","" & k2" '> error 92 9,92,1
Q "For v = 1 To Null : Next" '> error 94
Q "For v = ""x"" To 3 : Next" '> error 13
Q "On Error Resume Next : k2 = 0 : For Each v In 3.5 : k2 = k2 + 1 : Next : r = Err.Number & "","" & k2" '> error 451 451,1
Q "For Each v In 3.5 : Next" '> error 451
Q "For Each v In ""abc"" : Next" '> error 451
Q "For Each v In Null : Next" '> error 451
Q "For Each v In Nothing : Next" '> error 91
Q "For Each v In p : Next" '> error 451
Q "For Each v In dd : Next" '> ok

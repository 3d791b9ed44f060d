' A stack of objects, arrays and values; expressions in postfix notation.
Class Node: Public Value, Nxt: End Class
Class Stack
    Private top, n
    Private Sub Class_Initialize: Set top = Nothing: n = 0: End Sub
    Public Sub Push(v)
        Dim k: Set k = New Node
        If IsObject(v) Then Set k.Value = v Else k.Value = v
        Set k.Nxt = top: Set top = k: n = n + 1
    End Sub
    Public Function Pop
        If top Is Nothing Then Err.Raise 5, "Stack", "empty"
        If IsObject(top.Value) Then Set Pop = top.Value Else Pop = top.Value
        Set top = top.Nxt: n = n - 1
    End Function
    Public Property Get Count: Count = n: End Property
End Class
Function Calculate(t)
    Dim st, k, b: Set st = New Stack
    For Each k In Split(t)
        Select Case k
        Case "+" : st.Push st.Pop + st.Pop
        Case "*" : st.Push st.Pop * st.Pop
        Case "-" : b = st.Pop: st.Push st.Pop - b
        Case "/" : b = st.Pop: st.Push st.Pop / b
        Case Else st.Push CDbl(k)
        End Select
    Next
    Calculate = st.Pop
End Function
Set s = New Stack: s.Push 1: s.Push "two": s.Push New Stack: s.Push Array(1, 2)
WScript.Echo s.Count, UBound(s.Pop), TypeName(s.Pop()), s.Pop, s.Pop, s.Count '> 4 1 Stack two 1 0
WScript.Echo Calculate("3 4 + 2 * 7 /"), Calculate("10 2 8 * + 3 -") '> 2 23
On Error Resume Next: s.Pop: WScript.Echo Err.Description, Err.Source '> empty Stack

' An error in a procedure without a handler of its own goes on after the call.
On Error Resume Next
Sub Inner: x = 1 / 0: WScript.Echo "not here": End Sub
Sub Outer: Inner: WScript.Echo "nor here": End Sub
Outer: WScript.Echo "after", Err.Number: Err.Clear '> after 11
Sub Handles: On Error Resume Next: Inner: WScript.Echo "handled", Err.Number: End Sub
Handles: WScript.Echo "kept", Err.Number: Err.Clear
'> handled 11
'> kept 11
Sub Forgets: On Error Resume Next: x = 1 / 0: On Error GoTo 0: WScript.Echo Err.Number: x = CInt("x"): WScript.Echo "no": End Sub
Forgets: WScript.Echo Err.Number: Err.Clear
'> 0
'> 13
Function Half: Half = 5: x = 1 \ 0: Half = 6: End Function
y = 1: y = Half(): WScript.Echo y, Err.Number: Err.Clear '> 1 11
y = 1: y = Half() + Half(): WScript.Echo y, Err.Number: Err.Clear '> 1 11
WScript.Echo "a" & Half() & "b": WScript.Echo Err.Number: Err.Clear '> 11
a = Array(1, 2): a(Half()) = 3: WScript.Echo a(0), a(1), Err.Number: Err.Clear '> 1 2 11
Set o = New RegExp: o.Pattern = Half(): WScript.Echo "[" & o.Pattern & "]", Err.Number: Err.Clear '> [] 11
Class C
    Public Property Get Bad: Bad = 1 / 0: End Property
    Public Property Let Bad(v): WScript.Echo "let": x = 1 / 0: WScript.Echo "no": End Property
    Private Sub Class_Terminate: WScript.Echo "gone": x = 1 / 0: End Sub
End Class
Set c1 = New C: z = 7: z = c1.Bad: WScript.Echo z, Err.Number: Err.Clear
c1.Bad = 3: WScript.Echo Err.Number: Err.Clear
'> 7 11
'> let
'> 11
'> gone
Set c1 = Nothing: WScript.Echo Err.Number: Err.Clear '> 0
With New C: WScript.Echo .Bad: WScript.Echo "in with": End With: WScript.Echo Err.Number: Err.Clear
'> in with
'> gone
'> 11
For Each q In Half(): WScript.Echo "body": Next: WScript.Echo Err.Number: Err.Clear
'> body
'> 11
Select Case Half(): Case 5: WScript.Echo "five": Case 6: WScript.Echo "six": End Select: WScript.Echo Err.Number: Err.Clear
'> five
'> 11
ReDim r(Half()): WScript.Echo IsArray(r), Err.Number: Err.Clear '> False 11
Execute "x = 1 / 0: E2": WScript.Echo Err.Number: Err.Clear '> 11
t = Eval("1 / 0"): WScript.Echo IsEmpty(t), Err.Number: Err.Clear '> True 11

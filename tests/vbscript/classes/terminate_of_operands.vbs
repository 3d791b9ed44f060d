' An object that nothing holds ends as soon as the operator, the index or the call that took it is done.
Class K
  Private Sub Class_Terminate
    ended = ended + 1
  End Sub
  Public Default Property Get V
    V = 1
  End Property
End Class
Dim ended, x, a, d, i, b
Sub Says(value)
  WScript.Echo ended & ":" & value
  ended = 0
End Sub
a = Array(5, 6)
Set d = CreateObject("Scripting.Dictionary")
x = (New K) + 1 : Says x '> 1:2
x = 1 - (New K) : Says x '> 1:0
x = (New K) * (New K) : Says x '> 2:1
x = (New K) & "" : Says x '> 1:1
x = "" & (New K) & "" : Says x '> 1:1
x = -(New K) : Says x '> 1:-1
x = Not (New K) : Says x '> 1:-2
x = (New K) = 1 : Says x '> 1:True
x = 2 > (New K) : Says x '> 1:True
x = (New K) Is Nothing : Says x '> 1:False
x = Nothing Is (New K) : Says x '> 1:False
x = (New K) Xor 3 : Says x '> 1:2
x = (New K) ^ 2 : Says x '> 1:1
x = (New K) Imp 0 : Says x '> 1:-2
x = 7 \ (New K) : Says x '> 1:7
If (New K) = 1 Then Says "equal" '> 1:equal
If 1 = (New K) Then Says "equal" '> 1:equal
If (New K) Is Nothing Then Says "nothing" Else Says "something" '> 1:something
If d Is (New K) Then Says "same" Else Says "another" '> 1:another
If (New K) And 1 Then Says "and" '> 1:and
If (New K) Then Says "true" '> 1:true
x = a((New K)) : Says x '> 1:6
a((New K)) = 9 : Says a(1) '> 1:9
a(0) = (New K) : Says a(0) '> 1:1
x = Len((New K)) : Says x '> 1:1
x = Mid("abc", (New K), (New K)) : Says x '> 2:a
x = TypeName(New K) : Says x '> 1:K
x = d.Exists(New K) : Says x '> 1:False
x = (New K).V : Says x '> 1:1
d("k") = (New K) : Says d("k") '> 1:1
d.Item("k") = (New K) : Says d("k") '> 1:1
ReDim b((New K)) : Says UBound(b) '> 1:1
Select Case (New K) : Case 1 : Says "case" : End Select '> 1:case
Select Case 1 : Case (New K) : Says "case" : End Select '> 1:case
For i = (New K) To (New K) Step (New K) : Says "body" : Next '> 3:body
Do Until (New K) = 1 : Loop : Says "loop" '> 1:loop
Takes New K : Says "taken" '> 1:taken
x = TakesValue(New K) : Says x '> 1:2
x = Eval("(New K) + 2") : Says x '> 1:3
Set x = Hands(New K) : Says "held" '> 0:held
Set x = Nothing : Says "let go" '> 1:let go
With New K : Says .V : End With : Says "with" '> 0:1
'> 1:with
On Error Resume Next
x = (New K) + "a" : Says Err.Number : Err.Clear '> 1:13
x = a((New K), 1) : Says Err.Number : Err.Clear '> 1:9
x = (New K).None : Says Err.Number : Err.Clear '> 1:438
Sub Takes(o)
End Sub
Function TakesValue(ByVal o)
  TakesValue = o + 1
End Function
Function Hands(o)
  Set Hands = o
End Function

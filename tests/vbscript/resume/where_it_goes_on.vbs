' Under Resume Next the statement after the failing one is next, in whatever construct it stands.
On Error Resume Next
If 1 / 0 Then WScript.Echo "then" Else WScript.Echo "else" '> then
If 1 / 0 = 1 Then
    WScript.Echo "block then"
ElseIf True Then
    WScript.Echo "elseif"
End If '> block then
If False Then
    WScript.Echo "no"
ElseIf 1 / 0 Then
    WScript.Echo "in the failed elseif"
Else
    WScript.Echo "else"
End If '> in the failed elseif
Err.Clear: n = 0
Do While 1 / 0 > 1
    n = n + 1: If n > 2 Then Exit Do
Loop
WScript.Echo n, Err.Number: Err.Clear: n = 0 '> 3 11
Do
    n = n + 1: If n > 2 Then Exit Do
Loop Until 1 / 0
WScript.Echo n, Err.Number: Err.Clear: n = 0 '> 1 11

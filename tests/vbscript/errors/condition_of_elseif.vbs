If False Then
ElseIf "x" Then '! 13
End If

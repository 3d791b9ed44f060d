If x = 1 Then
ElseIf x = 2 '! 1017
End If

x = 1
If x = 1 Then
  Err.Raise 600, "a", "b" '! 600
End If

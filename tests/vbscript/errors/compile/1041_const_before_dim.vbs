Const c = 1
If True Then
  Dim c '! 1041
End If

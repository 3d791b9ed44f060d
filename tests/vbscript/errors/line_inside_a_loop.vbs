For i = 3 To 0 Step -1
  If i = 0 Then
    x = 6 / i '! 11
  End If
Next

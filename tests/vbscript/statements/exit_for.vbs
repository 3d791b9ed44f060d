For i = 1 To 10
  If i = 4 Then Exit For
Next
WScript.Echo i '> 4

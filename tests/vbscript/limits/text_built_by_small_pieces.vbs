For i = 1 To 200000
  s = s & "x"
Next
WScript.Echo Len(s) '> 200000

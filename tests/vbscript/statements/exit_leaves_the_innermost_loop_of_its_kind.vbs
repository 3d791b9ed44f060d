For i = 1 To 3
  Do
    Exit For
  Loop
Next
WScript.Echo i '> 1

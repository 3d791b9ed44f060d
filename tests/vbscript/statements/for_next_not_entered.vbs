For i = 5 To 1
  WScript.Echo "nunca"
Next
WScript.Echo i '> 5
For i = 1 To 5 Step -1
  WScript.Echo "nunca"
Next
WScript.Echo i '> 1

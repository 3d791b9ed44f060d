For i = 1 To 3
  WScript.Echo i
Next
'> 1
'> 2
'> 3
WScript.Echo i '> 4

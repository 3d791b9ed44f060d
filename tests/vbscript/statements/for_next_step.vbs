For i = 10 To 1 Step -3
  s = s & i & " "
Next
WScript.Echo s & i '> 10 7 4 1 -2

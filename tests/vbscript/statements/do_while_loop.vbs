i = 0
Do While i < 3
  i = i + 1
Loop
WScript.Echo i '> 3
Do While False
  WScript.Echo "nunca"
Loop

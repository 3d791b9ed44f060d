i = 0
Do Until i >= 3
  i = i + 1
Loop
WScript.Echo i '> 3
Do Until True
  WScript.Echo "nunca"
Loop

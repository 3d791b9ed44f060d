i = 10
Do
  i = i + 1
Loop While i < 3
WScript.Echo i '> 11

i = 0
Do
  i = i + 1
Loop Until i = 5
WScript.Echo i '> 5

i = 0
While i < 2
  j = 0
  While j < 3
    n = n + 1
    j = j + 1
  Wend
  i = i + 1
Wend
WScript.Echo n '> 6

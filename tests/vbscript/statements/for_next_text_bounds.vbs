For i = "1" To "3"
  n = n + i
Next
WScript.Echo n '> 6

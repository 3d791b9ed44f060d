a = Array(1, 2, 3)
For Each v In a
  v = v * 10
Next
WScript.Echo Join(a) '> 1 2 3

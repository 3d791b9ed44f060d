Dim r
Sub T
  Dim v
  v = 1
  S v, v
  WScript.Echo v
End Sub
Sub S(a, b)
  a = 5
  r = b
End Sub
T '> 5
WScript.Echo r '> 5
Sub U
  Dim v
  v = 1
  S 0, v
  WScript.Echo v, r '> 1 1
End Sub
U

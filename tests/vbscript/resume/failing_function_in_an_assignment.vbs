Function F
  F = 5
  x = 1 / 0
End Function
On Error Resume Next
y = "antes"
y = F()
WScript.Echo y, Err.Number '> antes 11

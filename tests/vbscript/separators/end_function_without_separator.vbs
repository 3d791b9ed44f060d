Function F
  F = 4 End Function
WScript.Echo F '> 4

Function F
  Execute "F = 12"
End Function
WScript.Echo F '> 12

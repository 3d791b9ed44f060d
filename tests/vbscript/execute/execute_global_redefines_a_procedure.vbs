Function F
  F = "vieja"
End Function
ExecuteGlobal "Function F : F = ""nueva"" : End Function"
WScript.Echo F '> nueva

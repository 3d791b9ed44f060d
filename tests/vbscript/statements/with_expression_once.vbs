Dim veces
Function Da()
  veces = veces + 1
  Set Da = CreateObject("Scripting.Dictionary")
End Function
With Da()
  .Add "a", 1
  .Add "b", 2
End With
WScript.Echo veces '> 1

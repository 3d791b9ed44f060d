Set d = CreateObject("Scripting.Dictionary")
Set primero = d
With d
  Set d = Nothing
  .Add "k", 1
End With
WScript.Echo primero.Count '> 1

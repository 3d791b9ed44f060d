Set fuera = CreateObject("Scripting.Dictionary")
Set dentro = CreateObject("Scripting.Dictionary")
With fuera
  .Add "a", 1
  With dentro
    .Add "x", 1
    .Add "y", 2
  End With
  .Add "b", 2
  .Add "c", 3
End With
WScript.Echo fuera.Count, dentro.Count '> 3 2

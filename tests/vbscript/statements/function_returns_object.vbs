Function Crea()
  Set Crea = CreateObject("Scripting.Dictionary")
  Crea.Add "a", 1
End Function
Set d = Crea()
WScript.Echo d.Count, Crea().Exists("a") '> 1 True

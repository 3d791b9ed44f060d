Set d = CreateObject("Scripting.Dictionary")
d.Add "a", 1
WScript.Echo (d).Count '> 1

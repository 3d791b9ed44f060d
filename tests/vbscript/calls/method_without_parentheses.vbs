Set d = CreateObject("Scripting.Dictionary")
d.Add "a", 1
Call d.Add("b", 2)
d.Add ("c"), (3)
WScript.Echo d.Count '> 3

Set d = CreateObject("Scripting.Dictionary")
d.Add "a", 1
d.Add "A", 2
WScript.Echo d.Count, d.CompareMode '> 2 0

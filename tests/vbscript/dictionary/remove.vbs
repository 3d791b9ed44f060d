Set d = CreateObject("Scripting.Dictionary")
d.Add "a", 1
d.Add "b", 2
d.Remove "a"
WScript.Echo d.Count, d.Exists("a"), Join(d.Keys) '> 1 False b

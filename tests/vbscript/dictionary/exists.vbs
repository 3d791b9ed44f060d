Set d = CreateObject("Scripting.Dictionary")
d.Add "a", Empty
WScript.Echo d.Exists("a"), d.Exists("b"), d.Count '> True False 1

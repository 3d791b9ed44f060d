Set d = CreateObject("Scripting.Dictionary")
Set a = New RegExp
Set b = New RegExp
d.Add a, "a"
d.Add b, "b"
WScript.Echo d.Count, d(a), d(b) '> 2 a b

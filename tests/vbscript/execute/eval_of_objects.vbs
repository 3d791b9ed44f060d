Set d = CreateObject("Scripting.Dictionary")
d.Add "a", 5
WScript.Echo Eval("d(""a"")") '> 5
Set e = Eval("d")
WScript.Echo e Is d '> True

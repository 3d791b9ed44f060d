Set d = CreateObject("Scripting.Dictionary")
d.Add 1, "número"
d.Add "1", "texto"
WScript.Echo d.Count, d(1), d("1") '> 2 número texto

Set d = CreateObject("Scripting.Dictionary")
d.CompareMode = vbTextCompare
d.Add "Clave", 1
WScript.Echo d.Exists("CLAVE"), d("clave") '> True 1
d.Add "CLAVE", 2 '! 457

Set d = CreateObject("Scripting.Dictionary")
d.Add 1, "entero"
WScript.Echo d.Exists(CLng(1)), d.Exists(1.0) '> True True

Set d = CreateObject("Scripting.Dictionary")
x = d("nueva")
WScript.Echo TypeName(x), d.Count, d.Exists("nueva") '> Empty 1 True

Set d = CreateObject("Scripting.Dictionary")
d("a") = 1
d.Item("b") = 2
d("a") = 10
WScript.Echo d.Count, d("a"), d("b") '> 2 10 2

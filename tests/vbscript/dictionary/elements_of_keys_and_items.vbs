Set d = CreateObject("Scripting.Dictionary")
d("a") = 1 : d("b") = 2
WScript.Echo d.Keys()(1), d.Items()(0), d.Keys(0), d.Items(1) '> b 1 a 2

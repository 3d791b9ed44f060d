Set d = CreateObject("Scripting.Dictionary")
d("a") = 1 : d("b") = 2 : d("c") = 3
d.Remove "a"
d("a") = 4
WScript.Echo Join(d.Keys, "") '> bca

Set d = CreateObject("Scripting.Dictionary")
d(Empty) = "e"
d(Null) = "n"
d("") = "t"
d(0) = "c"
WScript.Echo d.Count, d(Empty), d(Null), d(""), d(0) '> 4 e n t c

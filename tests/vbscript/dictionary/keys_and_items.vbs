Set d = CreateObject("Scripting.Dictionary")
d.Add "b", 1
d.Add "a", 2
d.Add "c", 3
WScript.Echo Join(d.Keys), Join(d.Items) '> b a c 1 2 3
k = d.Keys
WScript.Echo k(0), UBound(k), d.Items()(2) '> b 2 3

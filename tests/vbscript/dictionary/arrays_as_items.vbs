' The item comes out as a copy: changing it needs putting it back.
Set d = CreateObject("Scripting.Dictionary")
d.Add "a", Array(1, 2)
x = d("a")
x(0) = 99
WScript.Echo d("a")(0) '> 1
d("a") = x
WScript.Echo d("a")(0) '> 99

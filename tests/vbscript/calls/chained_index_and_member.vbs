Set d = CreateObject("Scripting.Dictionary")
d.Add "lista", Array(1, Array(2, 3))
WScript.Echo d("lista")(0), d("lista")(1)(1), d.Item("lista")(1)(0) '> 1 3 2
WScript.Echo UBound(d("lista")) '> 1

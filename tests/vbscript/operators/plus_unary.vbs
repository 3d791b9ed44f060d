' It changes nothing and converts nothing.
WScript.Echo +"siete", TypeName(+"7"), TypeName(+Empty), TypeName(+Null) '> siete String Empty Null
WScript.Echo TypeName(+True), TypeName(+ +5), - +5, + -5 '> Boolean Integer -5 -5
Set d = CreateObject("Scripting.Dictionary")
WScript.Echo +d Is d '> True
Set e = +d
WScript.Echo e Is d '> True
a = Array(1, 2)
b = +a
WScript.Echo UBound(b), UBound(+a) '> 1 1
WScript.Echo +"a" & +"b", 3 - +2, 2 + +"3" '> ab 1 5

Dim e
WScript.Echo e + 5, e - 5, e * 5, e & "x" '> 5 -5 0 x
WScript.Echo TypeName(e + e), TypeName(e + "a"), TypeName(e & e), TypeName(e + 1.5) '> Integer String String Double
WScript.Echo -e, e ^ 2 '> 0 0

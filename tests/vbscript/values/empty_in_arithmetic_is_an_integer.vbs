Dim e
WScript.Echo TypeName(e * 12), TypeName(-e), TypeName(e + e), TypeName(12 - e) '> Integer Integer Integer Integer
WScript.Echo TypeName(e \ 5), TypeName(e Mod 5), TypeName(e / 5), TypeName(e ^ 2) '> Integer Integer Double Double
WScript.Echo TypeName(e + CByte(1)), TypeName(e + CLng(1)), TypeName(e * CSng(2)) '> Integer Long Single
WScript.Echo TypeName(e + True), TypeName(e + "a"), TypeName(e + CCur(1)) '> Integer String Currency

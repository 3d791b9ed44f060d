WScript.Echo CLng(2.5), CLng(3.5), CLng("100000") '> 2 4 100000
WScript.Echo CLng(2147483647), CLng(-2147483648.0) '> 2147483647 -2147483648
WScript.Echo TypeName(CLng(1)) '> Long

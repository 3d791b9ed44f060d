WScript.Echo TypeName(0), TypeName(32767), TypeName(32768) '> Integer Integer Long
WScript.Echo TypeName(2147483647), TypeName(2147483648) '> Long Double
WScript.Echo TypeName(-32768), -32768 '> Long -32768

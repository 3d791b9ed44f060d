WScript.Echo Abs(-5), Abs(5), Abs(0) '> 5 5 0
WScript.Echo Abs("-3") '> 3
WScript.Echo Abs(Empty) '> 0
WScript.Echo IsNull(Abs(Null)) '> True

WScript.Echo Oct(8), Oct(0), Oct(64) '> 10 0 100
WScript.Echo Oct(-1) '> 177777
WScript.Echo Oct(CLng(-1)) '> 37777777777
WScript.Echo IsNull(Oct(Null)) '> True

WScript.Echo IsNull(String(Null, "x")), IsNull(String(3, Null)) '> True True
WScript.Echo String(3, 65 + 256) '> AAA

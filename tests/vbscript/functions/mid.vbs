WScript.Echo Mid("abcdef", 2, 3), Mid("abcdef", 4) '> bcd def
WScript.Echo Mid("abc", 2, 50) '> bc
WScript.Echo "[" & Mid("abc", 4) & Mid("abc", 1, 0) & "]" '> []
WScript.Echo IsNull(Mid(Null, 1, 1)) '> True

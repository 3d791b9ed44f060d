WScript.Echo "[" & RTrim("  a b  ") & "]" '> [  a b]
WScript.Echo IsNull(RTrim(Null)) '> True

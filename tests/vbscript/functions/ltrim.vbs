WScript.Echo "[" & LTrim("  a b  ") & "]" '> [a b  ]
WScript.Echo IsNull(LTrim(Null)) '> True

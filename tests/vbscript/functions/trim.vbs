WScript.Echo "[" & Trim("  a b  ") & "]" '> [a b]
WScript.Echo Len(Trim("   ")), IsNull(Trim(Null)) '> 0 True

WScript.Echo CBool(0), CBool(5), CBool(-0.5) '> False True True
WScript.Echo CBool("0"), CBool("1") '> False True
WScript.Echo CBool("True"), CBool("false") '> True False
WScript.Echo CBool(Empty), TypeName(CBool(1)) '> False Boolean

WScript.Echo Asc("A"), Asc("abc"), Asc(" ") '> 65 97 32
WScript.Echo Asc("ñ") '> 241
WScript.Echo Asc("€") '> 128
WScript.Echo TypeName(Asc("A")) '> Integer

Set r = New RegExp
r.IgnoreCase = True
r.Pattern = "^ñandú [à-ÿ]$"
WScript.Echo r.Test("ÑANDÚ É") '> True
r.Pattern = "\bño\b"
WScript.Echo r.Test("AÑO") '> True

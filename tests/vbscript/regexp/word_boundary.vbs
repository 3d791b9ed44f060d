Set r = New RegExp
r.Pattern = "\bsol\b"
WScript.Echo r.Test("el sol sale"), r.Test("solar") '> True False

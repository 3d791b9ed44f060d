Set r = New RegExp
r.Pattern = "^\d{3}-\d{4}$"
WScript.Echo r.Test("555-1234"), r.Test("5555-1234") '> True False

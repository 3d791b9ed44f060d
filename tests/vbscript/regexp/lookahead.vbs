Set r = New RegExp
r.Pattern = "\d+(?= euros)"
WScript.Echo r.Execute("10 dólares, 25 euros")(0) '> 25
r.Pattern = "^(?!no).*$"
WScript.Echo r.Test("no va"), r.Test("va") '> False True

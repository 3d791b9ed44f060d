Set r = New RegExp
r.Pattern = "(\w+) (\w+)"
WScript.Echo r.Replace("hola mundo", "$2 $1") '> mundo hola
WScript.Echo r.Replace("hola mundo", "[$&]") '> [hola mundo]

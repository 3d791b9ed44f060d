Set r = New RegExp
r.Global = True
r.Pattern = "[^aeiou\s]"
WScript.Echo r.Replace("una casa", "") '> ua aa
r.Pattern = "\D"
WScript.Echo r.Replace("tel 91-555", "") '> 91555

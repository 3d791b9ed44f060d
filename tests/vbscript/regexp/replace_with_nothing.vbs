Set r = New RegExp
r.Pattern = "\s+"
r.Global = True
WScript.Echo r.Replace(" a  b c ", "") '> abc

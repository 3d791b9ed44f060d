Set r = CreateObject("VBScript.RegExp")
r.Pattern = "b+"
WScript.Echo TypeName(r), r.Test("abba"), r.Replace("abba", "-") '> IRegExp2 True a-a
Set s = CreateObject("vbscript.REGEXP")
WScript.Echo s.Pattern = "", TypeName(s) = TypeName(New RegExp), r Is s '> True True False
On Error Resume Next
Set t = CreateObject("VBScript.RegExp2") : WScript.Echo Err.Number : Err.Clear '> 429
Set t = CreateObject("VBScript") : WScript.Echo Err.Number : Err.Clear '> 429
Set t = CreateObject("") : WScript.Echo Err.Number : Err.Clear '> 429
Set t = CreateObject(Null) : WScript.Echo Err.Number : Err.Clear '> 94

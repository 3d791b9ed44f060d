Set r = New RegExp
r.Global = True : r.Multiline = True
r.Pattern = "[ \t]+"
s = r.Replace("  a   b " & vbLf & vbTab & "c  d", " ")
r.Pattern = "^ | $"
s = r.Replace(s, "")
WScript.Echo Replace(s, vbLf, "/") '> a b/c d

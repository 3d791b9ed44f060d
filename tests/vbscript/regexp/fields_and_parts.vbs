' Fields of a line with quotes, parts put together anew, a function as replacement.
Set re = New RegExp: re.Global = True
re.Pattern = "(?:^|,)(""(?:[^""]|"""")*""|[^,]*)"
For Each m In re.Execute("a,""b,c"",,""d""""e""")
    s = m.SubMatches(0): If Left(s, 1) = """" Then s = Replace(Mid(s, 2, Len(s) - 2), """""", """")
    WScript.Echo "[" & s & "]" & m.FirstIndex & ":" & m.Length
Next
'> [a]0:1
'> [b,c]1:6
'> []7:1
'> [d"e]8:7
re.Pattern = "(\w+)@(\w+)\.com": re.IgnoreCase = True
WScript.Echo re.Replace("x JOE@ACME.COM y", "$2 at $1 $$ $&") '> x ACME at JOE $ JOE@ACME.COM y
Set mm = re.Execute("a@b.com c@d.com"): WScript.Echo mm.Count, mm(1), mm(1).SubMatches(1), mm.Item(0).Value, mm(0).SubMatches.Count '> 2 c@d.com d a@b.com 2
re.Global = False: re.Pattern = "^\s*(\d{1,3})\.(\d{1,3})\s*$": WScript.Echo re.Test("10.20"), re.Test("1000.1") '> True False

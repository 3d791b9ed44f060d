s = "a" & Chr(0) & "b"
WScript.Echo Len(s), InStr(s, "b"), Asc(Mid(s, 2, 1)) '> 3 3 0

Set r = New RegExp
Sub P(patron, texto)
  r.Pattern = "^(?:" & patron & ")$"
  WScript.Echo r.Test(texto)
End Sub
P "\400", " 0" '> True
P "\377", Chr(255) '> True
P "\101", "A" '> True
P "\0", Chr(0) '> True
P "\08", Chr(0) & "8" '> True
P "\1012", "A2" '> True
P "\cj", vbLf '> True
P "\cJ", vbLf '> True
P "\c1", "c1" '> True
P "\x41", "A" '> True
P "\x4", "x4" '> True
P "\u0041", "A" '> True
P "\u004", "u004" '> True
P "\xZZ", "xZZ" '> True
P "\f\n\r\t\v", Chr(12) & vbLf & vbCr & vbTab & Chr(11) '> True
P "\q\-\/\""", "q-/""" '> True
P "\d\D\w\W\s\S", "1a_- x" '> True
P "\d", ChrW(&H661) '> False
P "\w", "ñ" '> False
P "[\b]", Chr(8) '> True
P "[\x41-\x43]+", "ABC" '> True
P "[a\-z]+", "a-z" '> True
P "[a-\d]+", "a-5" '> True
P "[\d-z]+", "5-z" '> True
P "[-a]+", "-a" '> True
P "[a-]+", "-a" '> True
P "[^\d]", "5" '> False
P "[^\D]", "5" '> True
P "[\]]", "]" '> True
P "[[]", "[" '> True
P "[^]", vbLf '> True
P "[]", "" '> False
P ".", vbLf '> False
P ".", vbCr '> True
P "a{2}", "aa" '> True
P "a{2,}", "aaaa" '> True
P "a{2,3}", "aaaa" '> False
P "a{,3}", "a{,3}" '> True
P "a{x}", "a{x}" '> True
P "a{0}b", "b" '> True
P "(?=a)a(?!b)", "a" '> True
P "\bde\b", "de" '> True
P "d\Be", "de" '> True
P "(?:a|b)+?c", "abc" '> True
r.Pattern = "[(](a)"
WScript.Echo r.Execute("(a")(0).SubMatches.Count '> 1
r.Pattern = "[\]()](a)(?:b)"
WScript.Echo r.Execute("(ab")(0).SubMatches.Count '> 1
r.Pattern = "\((a)\)"
WScript.Echo r.Execute("(a)")(0).SubMatches.Count '> 1

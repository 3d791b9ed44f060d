On Error Resume Next
Set r = New RegExp
For Each patron In Array("(a", "a)", "*a", "a**", "a{2}{3}", "(*)", "a|*", "^*", "[a", "[a\", "[z-a]", "a{3,2}", "(?<a>b)", "a\", "(?a)", "+", "a{70000}")
  r.Pattern = patron
  Err.Clear
  x = r.Test("a")
  WScript.Echo patron, Err.Number
Next
'> (a 5020
'> a) 5017
'> *a 5018
'> a** 5018
'> a{2}{3} 5018
'> (*) 5018
'> a|* 5018
'> ^* 5018
'> [a 5019
'> [a\ 5019
'> [z-a] 5021
'> a{3,2} 5017
'> (?<a>b) 5017
'> a\ 5017
'> (?a) 5017
'> + 5018
'> a{70000} 5017

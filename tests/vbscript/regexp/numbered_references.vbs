Set r = New RegExp
r.Pattern = "(a)(b)(c)(d)(e)(f)(g)(h)(i)(j)"
WScript.Echo r.Replace("abcdefghij", "$10"), r.Replace("abcdefghij", "$11"), r.Replace("abcdefghij", "$1"), r.Replace("abcdefghij", "$9$10"), r.Replace("abcdefghij", "$0") '> j a1 a ij $0
WScript.Echo r.Replace("abcdefghij", "$01"), r.Replace("abcdefghij", "$00"), r.Replace("abcdefghij", "$"), r.Replace("abcdefghij", "$$1"), r.Replace("abcdefghij", "$x") '> a $00 $ $1 $x
r.Pattern = "(a)(x)?"
WScript.Echo "[" & r.Replace("a", "$2") & "]", r.Replace("a", "$3"), r.Replace("a", "$10"), r.Replace("bac", "[$`|$&|$']") '> [] $3 a0 b[b|a|c]c
r.Pattern = "(a)(b)(c)(d)(e)(f)(g)(h)(i)(j)\10"
WScript.Echo r.Test("abcdefghijj"), r.Test("abcdefghija") '> True False
r.Pattern = "(a)\10"
WScript.Echo r.Test("aa0"), r.Test("a" & Chr(8)) '> True False
r.Pattern = "a\1"
WScript.Echo r.Test("a" & Chr(1)), r.Test("aa") '> True False

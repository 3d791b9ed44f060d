a = Split("uno dos tres")
WScript.Echo UBound(a), a(0), a(2) '> 2 uno tres
b = Split("a,,b", ",")
WScript.Echo UBound(b), "[" & b(1) & "]" '> 2 []
WScript.Echo UBound(Split("abc", ",")), UBound(Split("a--b--c", "--")) '> 0 2

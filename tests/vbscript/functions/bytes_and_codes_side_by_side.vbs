' Bytes, codes and escapes at their ends.
WScript.Echo Escape("a b+c/d@e*f_g-h.i"), Escape("ñ€áÿĀ"), Escape("%&=?"), Escape("") '> a%20b+c/d@e*f_g-h.i %F1%u20AC%E1%FF%u0100 %25%26%3D%3F |
WScript.Echo Unescape("a%20b"), Unescape("%u20AC%u00f1"), Unescape("%F1%zz%u12"), Unescape("%"), Unescape("%4"), Unescape("100%") '> a b €ñ ñ%zz%u12 % %4 100%
WScript.Echo Asc("A"), AscW("A"), AscB("A"), AscW("ñ"), Asc("ñ"), Chr(241), ChrW(241), AscW(ChrW(-1)), AscW(ChrW(65535)), AscW(ChrW(32768)), Asc("€")
'> 65 65 65 241 241 ñ ñ -1 -1 -32768 128
WScript.Echo LenB("abc"), LenB(""), LenB(ChrB(65)), LenB(ChrB(65) & ChrB(66)), MidB("abc", 3, 2), LeftB("abc", 2), RightB("abc", 4), InStrB("abc", "b"), InStrB(4, "abc", "b")
'> 6 0 1 2 b a bc 3 0
WScript.Echo AscB(MidB("AB", 3, 1)), LenB(LeftB("ab", 3)), LenB(MidB("ab", 2)), InStrB("a", ""), InStrB("", "a"), InStrB(3, "abab", "a") '> 66 3 3 1 0 5
On Error Resume Next
x = Chr(256): WScript.Echo Err.Number: Err.Clear '> 5
x = Chr(-1): WScript.Echo Err.Number: Err.Clear '> 5
x = ChrW(65536): WScript.Echo Err.Number: Err.Clear '> 5
x = ChrW(-32769): WScript.Echo Err.Number: Err.Clear '> 5
x = ChrB(256): WScript.Echo Err.Number: Err.Clear '> 6
x = AscB(""): WScript.Echo Err.Number: Err.Clear '> 5
x = LeftB("a", -1): WScript.Echo Err.Number: Err.Clear '> 5
x = MidB("a", 0): WScript.Echo Err.Number: Err.Clear '> 5
x = InStrB(0, "a", "b"): WScript.Echo Err.Number: Err.Clear '> 5

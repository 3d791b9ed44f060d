' Functions of texts, at their ends.
WScript.Echo Split("a,b,,c", ",")(3), UBound(Split("", ",")), UBound(Split("abc", "")), Split("aXbxc", "x", -1, 1)(2), UBound(Split("a b c", " ", 2)), Split("a b c", " ", 2)(1)
'> c -1 0 c 1 b c
WScript.Echo Join(Filter(Array("ab", "cd", "AB"), "a"), "|"), Join(Filter(Array("ab", "cd", "AB"), "a", False), "|"), Join(Filter(Array("ab", "cd", "AB"), "a", True, 1), "|")
'> ab cd|AB ab|AB
WScript.Echo Join(Array(1, True, 2.5, "x", Empty, #1/1/2020#)), Join(Array(), ","), Join(Array("a"), ","), Join(Array(1, 2), "") '> 1 True 2,5 x  01/01/2020  a 12
WScript.Echo Replace("aaa", "a", "b", 2), Replace("aaa", "a", "b", 1, 2), Replace("AbA", "a", "x", 1, -1, 1), Replace("abc", "", "x"), Replace("abc", "b", "")
'> bb bba xbx abc ac
WScript.Echo "[" & Replace("", "a", "b") & "]", "[" & Replace("abc", "c", "d", 4) & "]", Replace("aaa", "aa", "b"), Replace("abab", "ab", "ba", 1, 0) '> [] [] ba abab
WScript.Echo InStr("abcABC", "C"), InStr(1, "abcABC", "B", 1), InStr(3, "abcABC", "B", 1), InStr(2, "aaa", ""), InStr("", "a"), InStr("a", ""), InStr(5, "abc", "c")
'> 6 2 5 2 0 1 0
WScript.Echo InStrRev("abcabc", "b"), InStrRev("abcabc", "b", 4), InStrRev("abc", ""), InStrRev("", "a"), InStrRev("abcabc", "B", -1, 1), InStrRev("abc", "c", 2)
'> 5 2 3 0 5 0
WScript.Echo StrComp("a", "B"), StrComp("a", "B", 1), StrComp("a", "A", 1), StrComp("a", "A"), StrComp("", "a"), StrReverse("añb"), String(3, 65), String(2, "xy")
'> 1 -1 0 1 -1 bña AAA xx
WScript.Echo Left("abc", 10), Left("abc", 0) & "|", Mid("abc", 2), Mid("abc", 9) & "|", Mid("abc", 2, 1), Mid("abc", 3, 9), Right("abc", 0) & "|", Right("abc", 2)
'> abc | bc | b c | bc
WScript.Echo LCase("ÁÉÑ"), UCase("ñandú"), Len(123), Asc("€"), AscW("€"), Chr(128), Trim("  a b ") & "|", LTrim("  x") & "|", RTrim("x  ") & "|", "|" & Space(2) & "|"
'> áéñ ÑANDÚ 3 128 8364 € a b| x| x| |  ||

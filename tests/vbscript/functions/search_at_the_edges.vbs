WScript.Echo InStr(4, "abc", ""), InStr(3, "abc", ""), InStr(1, "", ""), InStr("", "a"), InStr("abc", "c"), InStr(3, "abc", "c"), InStr(4, "abc", "c"), InStr("abc", "abcd") '> 0 3 0 0 3 3 0 0
WScript.Echo InStr("aXbx", "x"), InStr(1, "aXbx", "x", 1), InStr(3, "aXbx", "X", 1), InStr("abcabc", "ca"), InStr(2, "aaa", "aa") '> 4 2 4 3 2
WScript.Echo InStrRev("abc", ""), InStrRev("abc", "", 2), InStrRev("", ""), InStrRev("", "a"), InStrRev("abc", "a"), InStrRev("abc", "a", 1), InStrRev("abc", "bc", 2), InStrRev("abc", "c", 4) '> 3 2 0 0 1 1 0 0
WScript.Echo InStrRev("aaa", "aa"), InStrRev("aaa", "aa", 2), InStrRev("aXbX", "x", -1, 1), InStrRev("aXbX", "x") '> 2 1 4 0
WScript.Echo Replace("aaa", "a", "b", 2), Replace("aaa", "a", "b", 1, 2), Replace("aaa", "a", "b", 3), "[" & Replace("aaa", "a", "b", 4) & "]", Replace("aaa", "a", "", 1, 0) '> bb bba b [] aaa
WScript.Echo Replace("aAa", "A", "x", 1, -1, 1), Replace("aAa", "A", "x"), Replace("abc", "", "x"), Replace("abab", "ab", "abab"), "[" & Replace("", "a", "b") & "]", Replace("abc", "c", "") '> xxx axa abc abababab [] ab
WScript.Echo InStrB("abc", "b"), InStrB(4, "abc", "b"), InStrB("abc", ChrB(98)), InStrB("abc", ""), InStrB(7, "abc", ""), InStrB(6, "abc", "") '> 3 0 3 1 0 6
WScript.Echo UBound(Split("a,b,c", ",")), UBound(Split("a,b,c", ",", 2)), Split("a,b,c", ",", 2)(1), UBound(Split("a,b,c", ",", 1)), UBound(Split("a,b,c", ",", 3)), UBound(Split("a,b,c", ",", 0)), UBound(Split(",", ",")) '> 2 1 b,c 0 2 -1 1
WScript.Echo UBound(Split("aXbxc", "x")), UBound(Split("aXbxc", "x", -1, 1)), Split("a--b", "--")(1), UBound(Split("aaa", "aa")), Split(" a b")(1) '> 1 2 b 1 a
WScript.Echo StrComp("a", "B"), StrComp("a", "B", 1), StrComp("a", "A", 1), StrComp("", ""), StrComp("b", "a"), StrComp("a", "ab"), TypeName(StrComp("a", "b")) '> 1 -1 0 0 1 -1 Integer
WScript.Echo Join(Filter(Array("uno", "DOS", "dos"), "o")), Join(Filter(Array("uno", "DOS", "dos"), "o", True, 1)), Join(Filter(Array("uno", "DOS"), "x", False)), UBound(Filter(Array(), "x")) '> uno dos uno DOS dos uno DOS -1

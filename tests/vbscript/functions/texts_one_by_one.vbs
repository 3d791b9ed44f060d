' A function on texts a line.
'after ../expressions.inc
X "Mid(""road"", 2)" '> String oad
X "Mid(""road"", 9)" '> String |
X "Mid(""road"", 2, 0)" '> String |
X "Mid(""road"", ""2"", ""1"")" '> String o
X "Mid(12345, 2, 2)" '> String 23
X "Left(12345, 2.5)" '> String 12
X "Left(12345, 3.5)" '> String 1234
X "Left(True, 2)" '> String Tr
X "Right(1.5, 2)" '> String .5
X "InStr(""abcabc"", ""C"")" '> Long 0
X "InStr(1, ""abcabc"", ""C"", 1)" '> Long 3
X "InStr(4, ""abcabc"", ""c"")" '> Long 6
X "InStr("""", ""a"")" '> Long 0
X "InStr(""a"", """")" '> Long 1
X "InStr("""", """")" '> Long 0
X "InStr(5, ""abc"", """")" '> Long 0
X "InStrRev(""abcabc"", ""c"", 5)" '> Long 3
X "InStrRev(""abcabc"", ""C"", -1, 1)" '> Long 6
X "InStrRev(""abc"", """")" '> Long 3
X "InStrRev("""", ""a"")" '> Long 0
X "InStrRev(""abc"", ""c"", 9)" '> Long 0
X "Replace(""aaa"", ""a"", ""b"", 2)" '> String bb
X "Replace(""aaa"", ""a"", ""b"", 1, 2)" '> String bba
X "Replace(""aAa"", ""A"", """", 1, -1, 1)" '> String |
X "Replace(""abc"", """", ""x"")" '> String abc
X "Replace("""", ""a"", ""x"")" '> String |
X "Replace(""abc"", ""b"", ""x"", 5)" '> String |
X "Replace(""abc"", ""b"", ""x"", 0)" '> error 5
X "Replace(""abc"", ""b"", ""x"", 1, 0)" '> String abc
X "StrComp(""a"", ""B"")" '> Integer 1
X "StrComp(""a"", ""B"", 1)" '> Integer -1
X "StrComp(""a"", ""A"", 2)" '> error 5
X "StrReverse(123)" '> String 321
X "Asc(""abc"")" '> Integer 97
X "AscW(ChrW(8364))" '> Integer 8364
X "AscW(ChrW(65000))" '> Integer -536
X "Asc(Chr(128))" '> Integer 128
X "Chr(128) = ChrW(8364)" '> Boolean True

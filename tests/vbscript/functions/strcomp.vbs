WScript.Echo StrComp("a", "b"), StrComp("b", "a"), StrComp("a", "a") '> -1 1 0
WScript.Echo StrComp("ABC", "abc", vbTextCompare) '> 0
WScript.Echo StrComp("ABC", "abc", vbBinaryCompare) '> -1
WScript.Echo StrComp("a", "ab"), StrComp("", "") '> -1 0
WScript.Echo IsNull(StrComp(Null, "a")) '> True

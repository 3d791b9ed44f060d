WScript.Echo Left(Mid("abcdef", 2), Len("xyz")) '> bcd
WScript.Echo UCase(Trim(Join(Array(" a", "b ")))) '> A B

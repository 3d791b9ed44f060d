WScript.Echo Replace("a-b-c", "-", "+") '> a+b+c
WScript.Echo Replace("abc", "z", "x"), Replace("aaa", "a", "") & "." '> abc .
WScript.Echo Replace("aaa", "a", "aa") '> aaaaaa
WScript.Echo Replace("abc", "", "x") '> abc

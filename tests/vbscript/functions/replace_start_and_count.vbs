' The part of the text before the start is not in the result.
WScript.Echo Replace("a-b-c-d", "-", "+", 3) '> b+c+d
WScript.Echo Replace("a-b-c-d", "-", "+", 1, 2) '> a+b+c-d
WScript.Echo Replace("a-b-c-d", "-", "+", 1, 0) '> a-b-c-d

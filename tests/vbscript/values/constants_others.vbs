WScript.Echo vbBinaryCompare, vbTextCompare '> 0 1
WScript.Echo vbTrue, vbFalse, vbUseDefault '> -1 0 -2
WScript.Echo vbObjectError '> -2147221504

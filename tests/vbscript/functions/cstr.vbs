WScript.Echo CStr(12) & CStr(1.5) & CStr("x") '> 121,5x
WScript.Echo CStr(#1/31/2020#) '> 31/01/2020
WScript.Echo Len(CStr(Empty)), TypeName(CStr(5)) '> 0 String

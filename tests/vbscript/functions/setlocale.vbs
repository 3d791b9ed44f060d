WScript.Echo SetLocale(1033) '> 3082
WScript.Echo CStr(1.5) '> 1.5
WScript.Echo SetLocale(3082) '> 1033
WScript.Echo CStr(1.5) '> 1,5

SetLocale "en-us"
WScript.Echo GetLocale() '> 1033
SetLocale "es-es"
WScript.Echo CStr(0.5) '> 0,5

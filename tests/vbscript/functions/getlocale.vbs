WScript.Echo GetLocale() '> 3082
SetLocale 1033
WScript.Echo GetLocale() '> 1033

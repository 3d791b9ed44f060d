WScript.Echo StrReverse("abc ñ"), StrReverse(123) '> ñ cba 321
WScript.Echo "[" & StrReverse("") & "]" '> []

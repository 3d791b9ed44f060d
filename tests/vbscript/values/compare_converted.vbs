n = 5
WScript.Echo CStr(5) = n, CStr("abc") > n '> True True
WScript.Echo CInt("5") = n, CStr(n) = "5" '> True True

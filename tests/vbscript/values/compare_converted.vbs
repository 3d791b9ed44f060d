' What a function gives is no literal: beside a text it is compared as a text.
n = 5
WScript.Echo CStr(5) = n, CStr("abc") > n '> True True
WScript.Echo CInt("5") = n, CStr(n) = "5" '> True True
WScript.Echo "007" = CInt(7), "7" = CInt(7), "7a" > CLng(7) '> False True True
WScript.Echo "8" = 4 + n - 1, "08" = n + 3 '> True False

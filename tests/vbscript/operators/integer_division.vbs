WScript.Echo 7 \ 2, -7 \ 2, 7 \ -2 '> 3 -3 -3
WScript.Echo 7.5 \ 2, 6.5 \ 2, TypeName(7.5 \ 2) '> 4 3 Long
WScript.Echo "9" \ 2, TypeName(7 \ 2) '> 4 Integer

WScript.Echo CStr(1 / 3) '> 0,333333333333333
WScript.Echo CStr(1E15), CStr(100000000000000) '> 1E+15 100000000000000
WScript.Echo CStr(0.0001), CStr(0.00001) '> 0,0001 1E-05
WScript.Echo CStr(-0.5), CStr(1E100) '> -0,5 1E+100
WScript.Echo CStr(0.1 + 0.2) '> 0,3

On Error Resume Next
WScript.Echo Err = 0 '> True
x = 1 / 0
WScript.Echo Err + 0 '> 11
If Err Then WScript.Echo "hubo error" '> hubo error

: : x = 1 : : y = 2 :
:
WScript.Echo x : WScript.Echo y
'> 1
'> 2

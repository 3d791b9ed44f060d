'options --pasadas 3
n = n + 1
WScript.Echo n
'> 1
'> 2
'> 3

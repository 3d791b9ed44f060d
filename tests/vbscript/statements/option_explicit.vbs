Option Explicit
Dim x
x = 1
WScript.Echo x '> 1
y = 2 '! 500

Option Explicit
x = 3
Dim x
WScript.Echo x '> 3

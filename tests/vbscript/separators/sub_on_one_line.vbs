Dim x
Sub S : x = 5 : End Sub
S
WScript.Echo x '> 5

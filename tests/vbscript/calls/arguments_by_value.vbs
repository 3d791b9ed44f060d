Sub Dobla(ByVal n)
  n = n * 2
End Sub
x = 5
Dobla x
Call Dobla(x)
WScript.Echo x '> 5

Sub Dobla(n)
  n = n * 2
End Sub
x = 5
Dobla x
WScript.Echo x '> 10

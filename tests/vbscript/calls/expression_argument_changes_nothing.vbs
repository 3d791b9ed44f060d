Sub Dobla(n)
  n = n * 2
End Sub
x = 5
Dobla x + 0
Dobla 7
WScript.Echo x '> 5

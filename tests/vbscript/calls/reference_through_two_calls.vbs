Sub Interior(n)
  n = n + 1
End Sub
Sub Exterior(n)
  Interior n
End Sub
x = 1
Exterior x
WScript.Echo x '> 2

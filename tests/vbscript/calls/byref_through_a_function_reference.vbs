Sub Sube(n)
  n = n + 1
End Sub
Set f = GetRef("Sube")
x = 1
f x
WScript.Echo x '> 2

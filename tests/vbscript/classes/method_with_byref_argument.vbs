Class K
  Public Sub Sube(n)
    n = n + 1
  End Sub
End Class
Set o = New K
x = 1
o.Sube x
Call o.Sube(x)
o.Sube (x)
WScript.Echo x '> 3

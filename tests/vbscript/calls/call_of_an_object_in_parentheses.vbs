Class Clock
  Public n
  Sub Tick
    WScript.Echo "tic"
  End Sub
  Sub Suena(x, y) WScript.Echo x, y End Sub
  Public Default Function Hora(x)
    WScript.Echo "hora", x
  End Function
End Class
Call (New Clock).Tick '> tic
Call (New Clock).Tick() '> tic
Call (New Clock).Suena(3, 4) '> 3 4
Set c = New Clock
Call (c).Tick '> tic
Call ((c)).Suena(1, 2) '> 1 2
Call (New Clock)(8) '> hora 8
Call (c)(9) '> hora 9

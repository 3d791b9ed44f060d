Class Cola
  Public alTerminar
  Public Sub Corre
    WScript.Echo alTerminar("x")
  End Sub
End Class
Function Grita(s)
  Grita = UCase(s) & "!"
End Function
Set c = New Cola
Set c.alTerminar = GetRef("Grita")
Set f = c.alTerminar
WScript.Echo f("a") '> A!

Class Cola
  Public alTerminar
  Public Function Corre(dato)
    Corre = alTerminar(dato)
  End Function
End Class
Function Grita(s)
  Grita = UCase(s) & "!"
End Function
Set c = New Cola
Set c.alTerminar = GetRef("Grita")
WScript.Echo c.Corre("x") '> X!

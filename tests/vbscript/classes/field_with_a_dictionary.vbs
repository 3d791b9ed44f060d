Class Carga
  Public Campos
  Private Sub Class_Initialize
    Set Campos = CreateObject("Scripting.Dictionary")
  End Sub
End Class
Set c = New Carga
c.Campos("a") = 5
c.Campos.Add "b", 6
WScript.Echo c.Campos("a"), c.Campos("b"), c.Campos.Count '> 5 6 2

Class A
  Public Function Hijo
    Set Hijo = New B
  End Function
End Class
Class B
  Public Function Nombre
    Nombre = "B"
  End Function
End Class
Set x = New A
WScript.Echo x.Hijo.Nombre '> B

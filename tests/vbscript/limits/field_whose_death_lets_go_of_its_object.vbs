' The only way to the object is the global that the old value of the field clears.
Class Campo
  Private Sub Class_Terminate
    WScript.Echo "campo"
    Set caja = Nothing
  End Sub
End Class
Class Recipiente
  Public contenido
  Public relleno(500)
  Sub Vacia
    contenido = 1
    WScript.Echo "sigue", contenido
  End Sub
  Private Sub Class_Terminate
    WScript.Echo "caja"
  End Sub
End Class

Dim caja
Set caja = New Recipiente
Set caja.contenido = New Campo
caja.contenido = 5                 '> campo
                                   '> caja
WScript.Echo caja Is Nothing       '> True

Set caja = New Recipiente
Set caja.contenido = New Campo
Set caja.contenido = Nothing       '> campo
                                   '> caja
Set caja = New Recipiente
Set caja.contenido = New Campo
caja.Vacia                         '> campo
                                   '> sigue 1
                                   '> caja

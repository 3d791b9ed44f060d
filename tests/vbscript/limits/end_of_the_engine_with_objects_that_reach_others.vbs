' What the globals hold at the end terminates one after the other and still finds the rest.
Class Parte
  Public nombre, otra
  Private Sub Class_Terminate
    WScript.Echo "fin de", nombre
    ReDim lista(100)
    Set nacida = Nothing
    If nombre = "a" Then
      Set nacida = New Parte
      nacida.nombre = "nacida"
    End If
  End Sub
End Class
Dim nacida, a, b, lista()
Set a = New Parte
a.nombre = "a"
Set a.otra = New Parte
a.otra.nombre = "parte de a"
Set b = New Parte
b.nombre = "b"
ReDim lista(1)
Set lista(0) = New Parte
lista(0).nombre = "en lista"
'> fin de a
'> fin de en lista
'> fin de parte de a
'> fin de nacida
'> fin de b

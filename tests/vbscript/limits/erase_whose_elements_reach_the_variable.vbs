' A fixed array is emptied while the last acts of its elements write to it, through a by-reference parameter too.
Class Vuelve
  Private Sub Class_Terminate
    WScript.Echo "termina"
    fija(0) = "escrita al terminar"
    fija(1) = copia
  End Sub
End Class

Dim fija(3), copia
Sub vacia(v)
  Erase v
  WScript.Echo v(0)
End Sub
copia = Array(1, 2, 3)
Set fija(0) = New Vuelve
Set fija(2) = New Vuelve
vacia fija                     '> termina
                               '> termina
                               '> escrita al terminar
WScript.Echo fija(1)(2)        '> 3

Class Otra
  Private Sub Class_Terminate
    mas Nothing
  End Sub
End Class
Dim doble(1)
Sub mas(o)
  doble(1) = doble
  Erase doble
  WScript.Echo "vaciada"
End Sub
Set doble(0) = New Otra
vacia2 doble                   '> vaciada
                               '> True
Sub vacia2(v)
  Erase v
  WScript.Echo IsEmpty(v(0))
End Sub

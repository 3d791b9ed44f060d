' The old value of an element ends while the element is written, and makes the array another one.
Class Ultimo
  Private Sub Class_Terminate
    WScript.Echo "termina"
    ReDim lista(40000)
    lista(0) = "nueva"
  End Sub
End Class

Dim lista()
ReDim lista(3)
Set lista(0) = New Ultimo
lista(0) = 5                          '> termina
WScript.Echo UBound(lista), lista(0)  '> 40000 nueva

ReDim lista(3)
Set lista(1) = New Ultimo
lista(1) = "texto"                    '> termina
WScript.Echo UBound(lista), lista(0)  '> 40000 nueva

ReDim lista(3)
Set lista(2) = New Ultimo
Set lista(2) = Nothing                '> termina
WScript.Echo UBound(lista)            '> 40000

Dim tabla()
ReDim tabla(2, 2)
Class Rehace
  Private Sub Class_Terminate
    ReDim tabla(300, 100)
    tabla(1, 1) = "rehecha"
  End Sub
End Class
Set tabla(1, 1) = New Rehace
tabla(1, 1) = 7
WScript.Echo UBound(tabla, 1), tabla(1, 1)  '> 300 rehecha

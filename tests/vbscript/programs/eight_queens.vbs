Dim columna(8), soluciones
Function Libre(f, c)
  Dim i
  For i = 1 To f - 1
    If columna(i) = c Or Abs(columna(i) - c) = f - i Then
      Libre = False
      Exit Function
    End If
  Next
  Libre = True
End Function
Sub Coloca(f, n)
  Dim c
  If f > n Then
    soluciones = soluciones + 1
    Exit Sub
  End If
  For c = 1 To n
    If Libre(f, c) Then
      columna(f) = c
      Coloca f + 1, n
    End If
  Next
End Sub
Coloca 1, 6
WScript.Echo soluciones '> 4
Coloca 1, 7
WScript.Echo soluciones '> 44

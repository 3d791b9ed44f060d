Function Parte(t, ancho)
  Dim p, linea
  For Each p In Split(t)
    If Len(linea) + Len(p) + 1 > ancho And linea <> "" Then
      Parte = Parte & linea & "|"
      linea = p
    ElseIf linea = "" Then
      linea = p
    Else
      linea = linea & " " & p
    End If
  Next
  Parte = Parte & linea
End Function
WScript.Echo Parte("en un lugar de la mancha de cuyo nombre", 12) '> en un lugar|de la mancha|de cuyo|nombre

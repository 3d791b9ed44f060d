For i = 1 To 2
  Class Punto
    Public x
  End Class
  Const LADO = 4
  Private Const ALTO = 5
  Public suma
  Private resta, tabla(2)
  suma = suma + LADO
Next
With New Punto
  .x = 3
  Public Sub Muestra(v)
    WScript.Echo v '> 3
  End Sub
  Muestra .x
End With
Do
  Private Function Area
    Area = LADO * ALTO
  End Function
  Exit Do
Loop
While tabla(0) = 0
  tabla(0) = Area
  Select Case tabla(0)
    Case 20
      Sub Fin(t) WScript.Echo t End Sub
  End Select
Wend
Fin tabla(0) '> 20
WScript.Echo suma, TypeName(resta) '> 8 Empty

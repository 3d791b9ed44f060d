Class Nodo
  Public clave, izq, der
  Public Sub Inserta(k)
    If k < clave Then
      If IsEmpty(izq) Then
        Set izq = New Nodo
        izq.clave = k
      Else
        izq.Inserta k
      End If
    Else
      If IsEmpty(der) Then
        Set der = New Nodo
        der.clave = k
      Else
        der.Inserta k
      End If
    End If
  End Sub
  Public Function Recorre
    If IsObject(izq) Then Recorre = izq.Recorre
    Recorre = Recorre & clave & " "
    If IsObject(der) Then Recorre = Recorre & der.Recorre
  End Function
  Public Function Altura
    Dim a, b
    If IsObject(izq) Then a = izq.Altura Else a = 0
    If IsObject(der) Then b = der.Altura Else b = 0
    If a > b Then Altura = a + 1 Else Altura = b + 1
  End Function
End Class
Set raiz = New Nodo
raiz.clave = 50
For Each k In Array(30, 70, 20, 40, 60, 80, 35)
  raiz.Inserta k
Next
WScript.Echo Trim(raiz.Recorre) '> 20 30 35 40 50 60 70 80
WScript.Echo raiz.Altura '> 4

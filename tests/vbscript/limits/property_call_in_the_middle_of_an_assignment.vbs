' The container of the assignment goes while its right side, its index or its default member is worked out.
Class Valor
  Public n
  Public Default Property Get Numero
    WScript.Echo "valor"
    Set caja = Nothing
    a = Empty
    Numero = n
  End Property
End Class
Class Recipiente
  Public campo, lista(3)
  Private m_n
  Public Property Get Propia(i)
    Propia = m_n
  End Property
  Public Property Let Propia(i, v)
    WScript.Echo "let", caja Is Nothing, i
    m_n = v
    WScript.Echo Propia(0)
  End Property
  Private Sub Class_Terminate
    WScript.Echo "caja fuera"
  End Sub
End Class
Function deshace(n)
  Set caja = Nothing
  a = "deshecha"
  deshace = n
End Function

Dim caja, a, v
Set v = New Valor
v.n = 2

Set caja = New Recipiente
caja.campo = v            '> valor
                          '> caja fuera
Set caja = New Recipiente
caja.lista(v) = 7         '> valor
                          '> caja fuera
Set caja = New Recipiente
caja.lista(1) = v         '> valor
                          '> caja fuera
Set caja = New Recipiente
caja.Propia(2) = 8        '> let False 2
                          '> 8
On Error Resume Next
caja.Propia(3) = deshace(9) '> caja fuera
WScript.Echo Err.Number   '> 424
Err.Clear
a = Array(1, 2, 3)
a(1) = v                  '> valor
WScript.Echo Err.Number   '> 13
Err.Clear
a = Array(1, 2, 3)
a(1) = deshace(4)
WScript.Echo Err.Number, a '> 13 deshecha
Err.Clear
a = Array(1, 2, 3)
a = a(1) + v + a(2)       '> valor
WScript.Echo Err.Number   '> 13

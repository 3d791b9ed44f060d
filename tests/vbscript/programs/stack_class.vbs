Class Pila
  Private datos(), n
  Private Sub Class_Initialize
    ReDim datos(3)
  End Sub
  Public Sub Mete(v)
    If n > UBound(datos) Then ReDim Preserve datos(n * 2)
    datos(n) = v
    n = n + 1
  End Sub
  Public Function Saca
    If n = 0 Then Err.Raise 5, "Pila", "pila vacía"
    n = n - 1
    Saca = datos(n)
  End Function
  Public Property Get Cuenta
    Cuenta = n + 0
  End Property
End Class

Set p = New Pila
For i = 1 To 10
  p.Mete i * i
Next
WScript.Echo p.Cuenta, p.Saca, p.Saca, p.Cuenta '> 10 100 81 8
Do While p.Cuenta > 0
  p.Saca
Loop
On Error Resume Next
p.Saca
WScript.Echo Err.Description '> pila vacía

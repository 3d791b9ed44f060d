Class Nodo
  Public sig
End Class
Set cabeza = Nothing
For i = 1 To 100000
  Set n = New Nodo
  Set n.sig = cabeza
  Set cabeza = n
Next
Set n = Nothing
Set cabeza = Nothing
WScript.Echo "fin" '> fin

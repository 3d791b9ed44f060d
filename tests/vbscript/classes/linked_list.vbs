Class Nodo
  Public dato, sig
End Class
Set cabeza = Nothing
For i = 3 To 1 Step -1
  Set n = New Nodo
  n.dato = i
  Set n.sig = cabeza
  Set cabeza = n
Next
Set n = cabeza
Do Until n Is Nothing
  s = s & n.dato & " "
  Set n = n.sig
Loop
WScript.Echo Trim(s) '> 1 2 3

peso = Array(12, 2, 1, 1, 4)
valor = Array(4, 2, 1, 2, 10)
Dim mejor(15)
For i = 0 To 4
  For c = 15 To peso(i) Step -1
    If mejor(c - peso(i)) + valor(i) > mejor(c) Then mejor(c) = mejor(c - peso(i)) + valor(i)
  Next
Next
WScript.Echo mejor(15) '> 15

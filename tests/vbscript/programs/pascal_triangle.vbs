Dim fila(10)
fila(0) = 1
For n = 0 To 6
  linea = ""
  For k = n To 1 Step -1
    fila(k) = fila(k) + fila(k - 1)
  Next
  For k = 0 To n
    linea = linea & fila(k) & " "
  Next
Next
WScript.Echo Trim(linea) '> 1 6 15 20 15 6 1

Function Suma(a, b)
  Suma = a + b
End Function
Function Producto(a, b)
  Producto = a * b
End Function
Function Reduce(lista, inicio, f)
  Reduce = inicio
  For Each v In lista
    Reduce = f(Reduce, v)
  Next
End Function
WScript.Echo Reduce(Array(1, 2, 3, 4), 0, GetRef("Suma")) '> 10
WScript.Echo Reduce(Array(1, 2, 3, 4), 1, GetRef("Producto")) '> 24

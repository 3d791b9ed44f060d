Class Matriz
  Private m(3, 3)
  Public Property Get Celda(f, c)
    Celda = m(f, c)
  End Property
  Public Property Let Celda(f, c, v)
    m(f, c) = v
  End Property
End Class
Set x = New Matriz
x.Celda(1, 2) = "a"
x.Celda(2, 1) = x.Celda(1, 2) & "b"
WScript.Echo x.Celda(2, 1) '> ab

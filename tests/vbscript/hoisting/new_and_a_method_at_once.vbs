Class K
  Public n
  Public Function Inicia(a, b)
    n = a + b
    Set Inicia = Me
  End Function
End Class
Set o = New K.Inicia(2, 3)
WScript.Echo o.n '> 5

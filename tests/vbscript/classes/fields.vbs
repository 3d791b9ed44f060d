Class K
  Public a
  Public b, c(2)
  Private oculto
End Class
Set o = New K
o.a = 1
o.c(2) = "x"
WScript.Echo o.a, TypeName(o.b), o.c(2) '> 1 Empty x

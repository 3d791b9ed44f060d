Class Cosa
  Public Valor
End Class
Set o = New COSA
o.VALOR = 1
WScript.Echo o.valor, TypeName(o) '> 1 Cosa

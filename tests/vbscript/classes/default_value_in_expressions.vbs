Class K
  Public Default Property Get Valor
    Valor = 21
  End Property
End Class
Set o = New K
WScript.Echo o * 2, o & "!", o = 21 '> 42 21! True
x = o
WScript.Echo x, TypeName(x), TypeName(o) '> 21 Integer K

Class K
  Private Property Get Oculta
    Oculta = 1
  End Property
  Public Function Ver
    Ver = Oculta + 1
  End Function
End Class
Set o = New K
WScript.Echo o.Ver '> 2
x = o.Oculta '! 438

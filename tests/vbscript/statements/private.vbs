Class C
  Private dato
  Private Function Oculta()
    Oculta = "oculta"
  End Function
  Public Function Ver()
    dato = 3
    Ver = Oculta() & dato
  End Function
End Class
Set o = New C
WScript.Echo o.Ver() '> oculta3
o.Oculta '! 438

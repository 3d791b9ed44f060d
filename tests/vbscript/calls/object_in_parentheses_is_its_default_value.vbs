Class K
  Public Default Property Get V
    V = 5
  End Property
End Class
Sub S(a)
  WScript.Echo TypeName(a)
End Sub
Set o = New K
S o '> K
S (o) '> Integer

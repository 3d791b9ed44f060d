Class K
  Private t
  Public Property Let V(n)
    t = "let " & n
  End Property
  Public Property Set V(o)
    t = "set " & TypeName(o)
  End Property
  Public Property Get V
    V = t
  End Property
End Class
Set o = New K
o.V = 5
WScript.Echo o.V '> let 5
Set o.V = Nothing
WScript.Echo o.V '> set Nothing

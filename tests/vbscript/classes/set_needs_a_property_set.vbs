On Error Resume Next
Class Solo
  Private m
  Property Let owner(v)
    If IsObject(v) Then Set m = v Else m = v
    WScript.Echo "let", TypeName(v)
  End Property
  Property Set otro(v)
    WScript.Echo "set", TypeName(v)
  End Property
End Class
Class Valor
  Public Default Property Get V : V = "valor" : End Property
End Class
Set o = New Solo
Set p = New Valor
Set o.owner = p
WScript.Echo Err.Number : Err.Clear '> 438
o.owner = p '> let Valor
o.owner = 3 '> let Integer
Set o.otro = p '> set Valor
o.otro = p
WScript.Echo Err.Number : Err.Clear '> 438
o.otro = 3
WScript.Echo Err.Number : Err.Clear '> 438

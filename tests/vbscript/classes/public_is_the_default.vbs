Class K
  Function F
    F = 1
  End Function
  Property Get P
    P = 2
  End Property
End Class
Set o = New K
WScript.Echo o.F, o.P '> 1 2

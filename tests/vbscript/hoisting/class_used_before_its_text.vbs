Set o = New K
WScript.Echo o.F '> 5
Class K
  Public Function F
    F = 5
  End Function
End Class

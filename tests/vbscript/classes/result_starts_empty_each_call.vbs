Class K
  Public Function Lista
    For i = 1 To 3
      Lista = Lista & i
    Next
  End Function
End Class
Set o = New K
WScript.Echo o.Lista, o.Lista '> 123 123

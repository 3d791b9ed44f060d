Class K
  Public x
End Class
Sub P(a, b)
  WScript.Echo a, b
End Sub
With New K
  .x = 1
  P .x = 1, "m" '> True m
  P .x, .x + 1 '> 1 2
End With

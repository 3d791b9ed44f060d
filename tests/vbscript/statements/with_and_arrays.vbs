Class K
  Public datos(3)
  Public n
End Class
With New K
  .n = 2
  .datos(.n) = "x"
  .datos(.n + 1) = .datos(.n) & "y"
  WScript.Echo .datos(3) '> xy
End With

Class K
  Public Function Doble(n)
    Doble = n * 2
  End Function
End Class
WScript.Echo 0 + (New K).Doble(4) '> 8

Class K
  Public Default Function Doble(n)
    Doble = n * 2
  End Function
End Class
Set o = New K
WScript.Echo o(4), o.Doble(5) '> 8 10

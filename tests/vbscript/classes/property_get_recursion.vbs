Class K
  Public Property Get Fact(n)
    If n <= 1 Then Fact = 1 Else Fact = n * Me.Fact(n - 1)
  End Property
End Class
Set o = New K
WScript.Echo o.Fact(6) '> 720

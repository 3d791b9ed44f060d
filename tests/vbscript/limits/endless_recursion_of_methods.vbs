Class K
  Public Property Get P
    P = Me.P + 1 '! 28 @*
  End Property
End Class
Set o = New K
x = o.P

Class K
End Class
Set o = New K
o.NoExiste '! 438

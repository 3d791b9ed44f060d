Class K
End Class
Set o = New K
x = o + 1 '! 438

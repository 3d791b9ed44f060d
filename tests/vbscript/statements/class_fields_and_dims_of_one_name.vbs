Class K
  Public Total
End Class
Dim Total
Total = 1
Set o = New K
o.Total = 2
WScript.Echo Total, o.Total '> 1 2

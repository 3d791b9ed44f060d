'options --pasadas 2
Const LIMITE = 5
Dim veces
veces = veces + 1
Function F
  F = LIMITE
End Function
Class K
  Public v
End Class
Set o = New K
WScript.Echo veces + F
'> 6
'> 7

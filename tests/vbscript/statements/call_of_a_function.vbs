Dim veces
Function Cuenta()
  veces = veces + 1
  Cuenta = veces
End Function
Call Cuenta
Call Cuenta()
Cuenta
WScript.Echo veces '> 3

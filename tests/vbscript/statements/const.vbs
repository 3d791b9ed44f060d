Const LIMITE = 10, NOMBRE = "uno"
Const MENOS = -5, FECHA = #1/31/2020#, SI = True
WScript.Echo LIMITE * 2, nombre, MENOS '> 20 uno -5
WScript.Echo FECHA, TypeName(SI) '> 31/01/2020 Boolean

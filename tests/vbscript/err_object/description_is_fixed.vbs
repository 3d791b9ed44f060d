' The name at fault is no part of the description.
Class Vacia : End Class
On Error Resume Next
Set o = New Vacia
o.Nada : WScript.Echo Err.Number, Err.Description : Err.Clear '> 438 El objeto no acepta esta propiedad o método
x = o.Nada(1) : WScript.Echo Err.Number, Err.Description : Err.Clear '> 438 El objeto no acepta esta propiedad o método
o.Nada = 1 : WScript.Echo Err.Number, Err.Description : Err.Clear '> 438 El objeto no acepta esta propiedad o método
Err.Nada : WScript.Echo Err.Number, Err.Description : Err.Clear '> 438 El objeto no acepta esta propiedad o método
Nada2 1 : WScript.Echo Err.Number, Err.Description : Err.Clear '> 13 No coinciden los tipos
Sub S(a) : End Sub
S : WScript.Echo Err.Number, Err.Description : Err.Clear '> 450 Número de argumentos erróneo o asignación de propiedad no válida
x = Len : WScript.Echo Err.Number, Err.Description : Err.Clear '> 450 Número de argumentos erróneo o asignación de propiedad no válida
Set x = New Ninguna : WScript.Echo Err.Number, Err.Description : Err.Clear '> 506 La clase no está definida
Execute "Option Explicit : y = noDeclarada" : WScript.Echo Err.Number, Err.Description '> 500 La variable no está definida

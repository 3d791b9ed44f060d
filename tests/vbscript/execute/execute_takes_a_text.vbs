On Error Resume Next
Class Texto
  Public Default Property Get V : V = "n = n + 1" : End Property
End Class
Class Numero
  Public Default Property Get V : V = 5 : End Property
End Class
Class Nada
End Class
n = 0
Execute 2.5 : WScript.Echo Err.Number : Err.Clear '> 13
Execute Empty : WScript.Echo Err.Number : Err.Clear '> 13
Execute Null : WScript.Echo Err.Number : Err.Clear '> 13
Execute True : WScript.Echo Err.Number : Err.Clear '> 13
Execute Array("n = 1") : WScript.Echo Err.Number : Err.Clear '> 13
Execute New Texto : WScript.Echo Err.Number, n : Err.Clear '> 0 1
Execute New Numero : WScript.Echo Err.Number : Err.Clear '> 13
Execute New Nada : WScript.Echo Err.Number : Err.Clear '> 438
Execute Nothing : WScript.Echo Err.Number : Err.Clear '> 91
ExecuteGlobal 2.5 : WScript.Echo Err.Number : Err.Clear '> 13
ExecuteGlobal New Texto : WScript.Echo Err.Number, n : Err.Clear '> 0 2
ExecuteGlobal New Nada : WScript.Echo Err.Number : Err.Clear '> 438

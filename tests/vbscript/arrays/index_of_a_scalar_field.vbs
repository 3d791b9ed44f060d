On Error Resume Next
Class Caja
  Public size, texto
  Private Sub Class_Initialize
    size = 9 : texto = "abc"
  End Sub
  Function Dentro : Dentro = size(1) : End Function
End Class
Set o = New Caja
x = o.size(2) : WScript.Echo Err.Number : Err.Clear '> 438
o.size(2) = 1 : WScript.Echo Err.Number : Err.Clear '> 438
o.size("w") = 1 : WScript.Echo Err.Number : Err.Clear '> 438
x = o.size(1, 1) : WScript.Echo Err.Number : Err.Clear '> 438
x = o.texto(0) : WScript.Echo Err.Number : Err.Clear '> 438
Set o.size(0) = o : WScript.Echo Err.Number : Err.Clear '> 438
o.size = Empty
x = o.size(0) : WScript.Echo Err.Number : Err.Clear '> 438
x = o.Dentro : WScript.Echo Err.Number : Err.Clear '> 13

' It compiles; executed it is error 505.
Sub Nunca
  x = .Valor
  .Otra = 5
End Sub
If False Then .Nada
On Error Resume Next
x = 1
x = .Valor
WScript.Echo Err.Number, x '> 505 1
Err.Clear
.Valor = 2
WScript.Echo Err.Number : Err.Clear '> 505
Set .Valor = Nothing
WScript.Echo Err.Number : Err.Clear '> 505
.Valor(1) = 2
WScript.Echo Err.Number : Err.Clear '> 505
.Hazlo 1, 2
WScript.Echo Err.Number : Err.Clear '> 505
Call .Hazlo(1)
WScript.Echo Err.Number : Err.Clear '> 505
WScript.Echo 1 + .Valor
WScript.Echo Err.Number : Err.Clear '> 505
With New RegExp
  Execute ".Global = True"
  WScript.Echo Err.Number : Err.Clear '> 505
  x = Eval(".Global")
  WScript.Echo Err.Number : Err.Clear '> 505
  WScript.Echo .Global '> False
  Fuera
End With
Sub Fuera
  On Error Resume Next
  .Global = True
  WScript.Echo Err.Number '> 505
End Sub
On Error GoTo 0
x = .Valor '! 505

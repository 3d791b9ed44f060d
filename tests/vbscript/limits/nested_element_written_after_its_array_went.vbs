' The right side makes the array, whose element is about to be written, another one.
Dim a

Function borra
  Erase a
  borra = 1
End Function
Function cambia
  a = Array(Array("otra", "x"), "y")
  cambia = "escrita"
End Function
Function suelta
  a(0) = "texto"
  suelta = 3
End Function

a = Array(Array(1, 2), Array(3, 4))
a(0)(1) = cambia()
WScript.Echo a(0)(0), a(0)(1), a(1)     '> otra escrita y

a = Array(Array(1, 2), Array(3, 4))
On Error Resume Next
a(0)(1) = borra()
WScript.Echo Err.Number                 '> 9
Err.Clear
a = Array(Array(1, 2), Array(3, 4))
a(0)(1) = suelta()
WScript.Echo Err.Number, a(0)           '> 13 texto
Err.Clear
a = Array(Array(Array(5, 6)), 1)
a(0)(0)(suelta()) = 9
WScript.Echo Err.Number, a(0)           '> 13 texto

total = 1
Dim tabla(2), d
Set d = CreateObject("Scripting.Dictionary")
Me.total = 5
WScript.Echo total, Me.total '> 5 5
Me.tabla(1) = 7
WScript.Echo tabla(1), Me.tabla(1) '> 7 7
Me.d("a") = 3
WScript.Echo d("a"), Me.d.Count '> 3 1
Sub Cambia(x) x = x + 1 End Sub
Me.Cambia total
WScript.Echo total, Me.Doble(4) '> 6 8
Function Doble(n) Doble = n * 2 End Function
Sub P
  Dim total
  total = "local"
  Me.total = "global"
  WScript.Echo total, Me.total '> local global
  Set Me.total = d
End Sub
P
WScript.Echo total Is d, Me Is Me, IsObject(Me) '> True True True
Set yo = Me
yo.TOTAL = 9
WScript.Echo total '> 9
ExecuteGlobal "Me.total = 10"
WScript.Echo total, Eval("Me.total") '> 10 10
With Me
  .total = 11
  .Cambia .total
End With
WScript.Echo total '> 11
On Error Resume Next
Me.noexiste = 1
WScript.Echo Err.Number : Err.Clear '> 438
x = Me.noexiste
WScript.Echo Err.Number : Err.Clear '> 438
Me.Doble = 1
WScript.Echo Err.Number : Err.Clear '> 438
x = Me + 1
WScript.Echo Err.Number : Err.Clear '> 438

On Error Resume Next
ExecuteGlobal "Dim box(1)" : WScript.Echo Err.Number '> 0
ExecuteGlobal "Dim box(1)" : WScript.Echo Err.Number : Err.Clear '> 13
ExecuteGlobal "Dim box()" : WScript.Echo Err.Number : Err.Clear '> 13
Execute "Dim box(7)" : WScript.Echo Err.Number : Err.Clear '> 13
Dim propio(2)
propio(0) = 5
ExecuteGlobal "Dim propio(2)" : WScript.Echo Err.Number, propio(0) : Err.Clear '> 13 5
Dim llano
llano = 5
ExecuteGlobal "Dim llano" : WScript.Echo Err.Number, llano '> 0 5
ExecuteGlobal "Dim llano(3)" : WScript.Echo Err.Number, UBound(llano) '> 0 3
suelto = 1
ExecuteGlobal "Dim suelto()" : WScript.Echo Err.Number, TypeName(suelto) '> 0 Variant()

' An array with bounds cannot be assigned as a whole, whichever text declared it.
ExecuteGlobal "Dim box(2) : box(1) = 5"
On Error Resume Next
ExecuteGlobal "box = 1"
WScript.Echo Err.Number, Eval("box(1)") '> 13 5
Err.Clear
Execute "For box = 1 To 2 : Next"
WScript.Echo Eval("box(1)") '> 5
Err.Clear
ExecuteGlobal "Sub Set_ : box = Array(1) : End Sub : Set_"
WScript.Echo Err.Number, Eval("box(1)") '> 13 5
Err.Clear
ExecuteGlobal "box(1) = 6"
WScript.Echo Err.Number, Eval("box(1)") '> 0 6
Sub P
  Dim a(2), b()
  a(1) = 7
  On Error Resume Next
  Execute "a = 1"
  WScript.Echo Err.Number, a(1) '> 13 7
  Err.Clear
  Execute "Dim c(1) : c(0) = 8"
  Execute "c = 1"
  WScript.Echo Err.Number, c(0) '> 13 8
  Err.Clear
  Execute "b = Array(9)"
  WScript.Echo Err.Number, b(0) '> 0 9
  Execute "a(1) = 10"
  WScript.Echo Err.Number, a(1) '> 0 10
End Sub
P

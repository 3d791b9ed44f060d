On Error Resume Next
Dim c
d = 1
Execute "Const c = 1" : WScript.Echo Err.Number : Err.Clear '> 1041
ExecuteGlobal "Const d = 1" : WScript.Echo Err.Number : Err.Clear '> 1041
ExecuteGlobal "x = 5 : Const d = 1" : WScript.Echo Err.Number, TypeName(Eval("x")) : Err.Clear '> 1041 Empty
ExecuteGlobal "Const e = 1" : WScript.Echo Err.Number, e '> 0 1
Sub P
  Dim f
  Execute "Const g = 2 : WScript.Echo g" '> 2
End Sub
P

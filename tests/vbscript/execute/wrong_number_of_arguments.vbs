On Error Resume Next
Sub Told
  WScript.Echo Err.Number
  Err.Clear
End Sub
x = Eval() : Told '> 450
x = Eval("1", "2") : Told '> 450
Execute : Told '> 450
Execute "x = 1", "x = 2" : Told '> 450
ExecuteGlobal : Told '> 450
ExecuteGlobal "x = 1", 2 : Told '> 450
Set r = GetRef() : Told '> 450
Set r = GetRef("Told", 1) : Told '> 450
WScript.Echo IsEmpty(x), IsEmpty(r) '> True True

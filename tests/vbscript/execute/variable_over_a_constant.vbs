Const rate = 3
Sub P
  WScript.Echo rate
End Sub
ExecuteGlobal "Dim rate : rate = 8"
WScript.Echo rate, Eval("rate") '> 3 8
P '> 3
Execute "WScript.Echo rate" '> 8
Execute "rate = 9"
WScript.Echo rate, Eval("rate") '> 3 9

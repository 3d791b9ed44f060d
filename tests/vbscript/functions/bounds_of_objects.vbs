' LBound and UBound take the value of an object's default member.
Class Trio
  Public Default Function Valores : Valores = Array(6, 7, 8) : End Function
End Class
Class Suma
  Public Default Function Total : Total = 5 : End Function
End Class
Class Vacia : End Class
WScript.Echo UBound(New Trio), LBound(New Trio), UBound(New Trio, 1) '> 2 0 2
On Error Resume Next
For Each f In Array("UBound", "LBound")
  x = Eval(f & "(New Suma)") : WScript.Echo Err.Number : Err.Clear
  '> 13
  x = Eval(f & "(New Vacia)") : WScript.Echo Err.Number : Err.Clear
  '> 438
  x = Eval(f & "(CreateObject(""Scripting.Dictionary""))") : WScript.Echo Err.Number : Err.Clear
  '> 450
  x = Eval(f & "(Nothing)") : WScript.Echo Err.Number : Err.Clear
  '> 91
  x = Eval(f & "(New Trio, 2)") : WScript.Echo Err.Number : Err.Clear
  '> 9
  '> 13
  '> 438
  '> 450
  '> 91
  '> 9
Next

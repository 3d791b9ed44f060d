' A blank before the bracket changes nothing where a member follows.
Class Caja
  Public Count
End Class
Function Envuelve(x)
  Set Envuelve = New Caja
  Envuelve.Count = x.Count * 10
End Function
Set d = CreateObject("Scripting.Dictionary")
d.Add "a", 1
WScript.Echo Envuelve (d).Count '> 10
d.Add "b", 2
Envuelve (d).Count
WScript.Echo d.Count '> 2

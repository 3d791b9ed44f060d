Function Plus(a, b) : Plus = a + b : End Function
Function Minus(a, b) : Minus = a - b : End Function
Function Times(a, b) : Times = a * b : End Function
Set ops = CreateObject("Scripting.Dictionary")
Set ops("+") = GetRef("Plus")
Set ops("-") = GetRef("Minus")
ops.Add "*", GetRef("Times")
For Each e In Array("7 + 5", "7 - 5", "7 * 5")
  p = Split(e)
  Set f = ops(p(1))
  WScript.Echo e & " = " & f(CInt(p(0)), CInt(p(2)))
Next
'> 7 + 5 = 12
'> 7 - 5 = 2
'> 7 * 5 = 35

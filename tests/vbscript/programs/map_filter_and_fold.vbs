Function Map(list, f)
  Dim r, i
  r = list
  For i = 0 To UBound(r) : r(i) = f(r(i)) : Next
  Map = r
End Function
Function Keep(list, f)
  Dim r(), n, v
  For Each v In list
    If f(v) Then ReDim Preserve r(n) : r(n) = v : n = n + 1
  Next
  Keep = r
End Function
Function Fold(list, start, f)
  Dim v
  Fold = start
  For Each v In list : Fold = f(Fold, v) : Next
End Function
Function Square(x) : Square = x * x : End Function
Function Odd(x) : Odd = x Mod 2 = 1 : End Function
Function Add(a, b) : Add = a + b : End Function
n = Array(1, 2, 3, 4, 5)
WScript.Echo Join(Map(n, GetRef("Square")), " ") '> 1 4 9 16 25
WScript.Echo Join(Keep(n, GetRef("Odd")), " ") '> 1 3 5
WScript.Echo Fold(Map(Keep(n, GetRef("Odd")), GetRef("Square")), 0, GetRef("Add")) '> 35
WScript.Echo Join(n) '> 1 2 3 4 5

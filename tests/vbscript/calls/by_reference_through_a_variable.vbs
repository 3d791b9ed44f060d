' A variable that holds a reference to a procedure, or an object with a default member, passes arguments as the
' procedure itself would, in an expression as in a statement.
Function Twice(v)
  v = v * 2
  Twice = v
End Function
Function Both(a, b)
  a = a + 1 : b = b + 10
  Both = a & "-" & b
End Function
Function Mine(ByVal v)
  v = v * 2
  Mine = v
End Function
Class Box
  Public Default Function Grow(v)
    v = v + 1
    Grow = v
  End Function
End Class
Class Shelf
  Public Default Property Get At(v)
    v = v + 5
    At = v
  End Property
End Class
Sub Inside(r)
  Dim z, list(1), y
  z = 3
  y = r(z) : WScript.Echo y, z '> 6 6
  r z : WScript.Echo z '> 12
  z = 3 : y = r((z)) : WScript.Echo y, z '> 6 3
  z = 3 : y = r(z + 0) : WScript.Echo y, z '> 6 3
  z = 3 : y = z + r(z) + z : WScript.Echo y '> 15
  list(1) = 4
  y = r(list(1)) : WScript.Echo y, list(1) '> 8 8
  y = r(r(list(1))) : WScript.Echo y, list(1) '> 32 16
  y = Twice(r(list(1))) : WScript.Echo y, list(1) '> 64 32
  z = 1 : If r(z) = 2 Then WScript.Echo z '> 2
End Sub
Dim f, b, m, g, o, s, k, p, q
Set f = GetRef("Twice")
Set b = GetRef("Both")
Set m = GetRef("Mine")
Inside f
g = 5 : k = f(g) : WScript.Echo k, g '> 10 10
f g : WScript.Echo g '> 20
Set o = New Box
g = 1 : k = o(g) : WScript.Echo k, g '> 2 2
Set s = New Shelf
g = 1 : k = s(g) : WScript.Echo k, g '> 6 6
p = 1 : q = 2 : k = b(p, q) : WScript.Echo k, p, q '> 2-12 2 12
p = 2 : k = b(p, p) : WScript.Echo k, p '> 13-13 13
p = 4 : k = m(p) : WScript.Echo k, p '> 8 4
Sub Through(z)
  Dim y
  y = f(z)
End Sub
Sub Outer
  Dim z
  z = 7
  Through z
  WScript.Echo z '> 14
End Sub
Outer

' Arrays and dictionaries behind the same kind of variable take values.
Dim d, list
Set d = CreateObject("Scripting.Dictionary")
d("a") = 1 : p = "a" : WScript.Echo d(p), p '> 1 a
list = Array(1, 2, 0) : p = 1 : WScript.Echo list(p), list(list(0)), list(list(list(2))) '> 2 2 2
On Error Resume Next
k = f(p, q) : WScript.Echo Err.Number '> 450

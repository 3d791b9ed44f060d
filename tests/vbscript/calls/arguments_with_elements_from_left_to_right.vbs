' An element that goes by reference is looked up when its turn comes, after the arguments left of it and before those
' right of it.
Dim a(2), i, s
Function Change
  a(0) = 99
  i = 1
  Change = 1
End Function
Sub Raise1(x, y)
  y = y + 1
End Sub
Raise1 Change(), a(0)
WScript.Echo a(0) '> 100
i = 0
Raise1 Change, a(i)
WScript.Echo a(0), a(1) '> 99 1

Function Told(n)
  s = s & n
  Told = n
End Function
Sub Three(x, y, z)
  y = 7
End Sub
Three Told(1), a(Told(2)), Told(3)
WScript.Echo s, a(2) '> 123 7

Class Caller
  Sub Go(x, y)
    y = y + 1
  End Sub
End Class
Set c = New Caller
c.Go Change(), a(0)
WScript.Echo a(0) '> 100
v = Array(Array(1, 2))
Function Replace0
  v(0) = Array(5, 6)
  Replace0 = 0
End Function
c.Go Replace0, v(0)(1)
WScript.Echo Join(v(0)) '> 5 7

' What an argument right of it puts into the element is seen, but the place of the element is settled before.
Sub First(y, x)
  y = y + 1
End Sub
i = 0
a(0) = 3
a(1) = 50
First a(i), Change()
WScript.Echo a(0), a(1), i '> 100 50 1
Function Counted(x)
  x = x + 1
  Counted = x
End Function
Set f = GetRef("Counted")
i = 1
First f(i), Change()
WScript.Echo i '> 1

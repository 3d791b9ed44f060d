' An element of an array that stands in an element goes by reference as any other, however deep.
Sub Raise1(x)
  x = x + 1
End Sub
Sub Fill(x)
  x = Array("new")
End Sub
Class Raiser
  Public Default Sub Up(x)
    x = x + 10
  End Sub
  Sub Raise2(x)
    x = x + 2
  End Sub
End Class
Dim a, b, box, r, i, grid(1)
a = Array(Array(1, 2), Array(3, Array(4, 5)), 6)
Raise1 a(0)(0)
Call Raise1(a(0)(1))
Raise1 a(1)(1)(1)
Raise1 (a(0)(0))
WScript.Echo a(0)(0), a(0)(1), a(1)(1)(1) '> 2 3 6
Set box = New Raiser
Set r = GetRef("Raise1")
box a(0)(0)
box.Raise2 a(0)(0)
r a(0)(0)
WScript.Echo a(0)(0) '> 15
i = 1
Fill a(i)(i)
WScript.Echo a(1)(1)(0) '> new
b = a
Raise1 b(0)(0)
WScript.Echo a(0)(0), b(0)(0) '> 15 16
grid(1) = Array(1)
ReDim two(1, 1)
two(1, 0) = Array(7, 8)
Raise1 grid(1)(0)
Raise1 two(1, 0)(1)
WScript.Echo grid(1)(0), two(1, 0)(1) '> 2 9

Sub On1(list)
  Raise1 list(0)(0)
End Sub
Sub InAProcedure
  Dim l
  l = Array(Array(1))
  On1 l
  Raise1 l(0)(0)
  WScript.Echo l(0)(0) '> 3
End Sub
InAProcedure

' Code of the script on the way is called, and gets its arguments by reference in its turn.
Function Give(n)
  n = n + 1
  Give = Array(n)
End Function
i = 1
a = Array(GetRef("Give"), GetRef("Raise1"))
Fill a(0)(i)
WScript.Echo i '> 2
Raise1 a(0)(i)(0)
WScript.Echo i '> 3
Set r = GetRef("Give")
Raise1 r(i)(0)
WScript.Echo i '> 4

' What becomes no array meanwhile takes nothing back.
Sub Empties(x)
  a(0) = "text"
  x = 5
End Sub
a = Array(Array(1))
Empties a(0)(0)
WScript.Echo a(0) '> text
On Error Resume Next
a = Array(Array(1), 2)
Raise1 a(1)(0)
WScript.Echo Err.Number '> 13
Err.Clear
Raise1 a(0)(3)
WScript.Echo Err.Number '> 9

' What is done to an element of a parameter that goes on to another procedure is done to the caller's array.
Sub Fill(z)
  z = 8
End Sub
Sub Look(z)
  seen = z
End Sub
Sub ByItsOwnCopy(ByVal z)
  z = 9
End Sub
Sub PassOn(a)
  Fill a(0)
End Sub
Sub PassOnTwice(a)
  PassOn a
End Sub
Sub PassOnInside(a, i)
  Dim unused
  unused = 1 + Result(a(i))
End Sub
Function Result(z)
  z = z & "!"
  Result = 0
End Function
Sub PassOnWithout(a)
  Look a(0)
  ByItsOwnCopy a(0)
End Sub
Sub Through(a, way)
  way a(0)
End Sub
Sub Descend(a, n)
  If n = 0 Then
    Fill a(1)
  Else
    Descend a, n - 1
  End If
End Sub
Class Box
  Public Sub Take(a)
    Inner a(0)
  End Sub
  Private Sub Inner(z)
    z = "boxed"
  End Sub
End Class
Sub P
  Dim x, b
  x = Array(1, 2)
  PassOn x
  WScript.Echo x(0) '> 8
  x = Array(1, 2)
  PassOnTwice x
  WScript.Echo x(0) '> 8
  PassOnInside x, 1
  WScript.Echo x(1) '> 2!
  PassOnWithout x
  WScript.Echo x(0) '> 8
  x(0) = 5
  Through x, GetRef("Fill")
  WScript.Echo x(0) '> 8
  Descend x, 3
  WScript.Echo x(1) '> 8
  Set b = New Box
  b.Take x
  WScript.Echo x(0) '> boxed
End Sub
P

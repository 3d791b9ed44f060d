' Only the declared array itself is fixed. What a procedure or an element gets as a copy of it is not.
Sub Value1(ByVal x)
  ReDim Preserve x(5)
  x(5) = x(0)
  WScript.Echo UBound(x), x(5)
End Sub
Sub Either(x)
  ReDim x(4)
  WScript.Echo UBound(x)
End Sub
Sub Emptied(ByVal x)
  On Error Resume Next
  Erase x
  n = UBound(x)
  WScript.Echo Err.Number
End Sub
Class Tray
  Public cells(2)
  Public Sub Grow(ByVal x)
    ReDim Preserve x(8)
    WScript.Echo UBound(x)
  End Sub
End Class
Dim fixed(2)
fixed(0) = "a"
Value1 fixed '> 5 a
Value1 (fixed) '> 5 a
Either (fixed) '> 4
Call Either((fixed)) '> 4
Emptied fixed '> 9
Set t = New Tray
Either t.cells '> 4
t.Grow fixed '> 8
t.Grow t.cells '> 8
WScript.Echo UBound(fixed), fixed(0), UBound(t.cells) '> 2 a 2
list = Array(fixed, 1)
ReDim Preserve list(0)(6)
WScript.Echo UBound(list(0)), list(0)(0), UBound(fixed) '> 6 a 2
Sub Local
  Dim own(1)
  own(1) = "o"
  Either (own) '> 4
  Value1 own '> 5 |
  WScript.Echo UBound(own), own(1) '> 1 o
  On Error Resume Next
  Either own
  WScript.Echo Err.Number, UBound(own) '> 10 1
End Sub
Local
Either fixed '! 10 @8

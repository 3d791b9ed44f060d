Sub Crece(a)
  ReDim Preserve a(3)
  a(3) = "nuevo"
End Sub
Dim x()
ReDim x(1)
Crece x
WScript.Echo UBound(x), x(3) '> 3 nuevo

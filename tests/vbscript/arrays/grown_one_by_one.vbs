ReDim a(0)
For i = 0 To 99
  ReDim Preserve a(i)
  a(i) = i * i
Next
WScript.Echo UBound(a), a(0), a(99) '> 99 0 9801

Dim m(7, 7), n(7, 7)
m(1, 2) = 1 : m(2, 3) = 1 : m(3, 1) = 1 : m(3, 2) = 1 : m(3, 3) = 1
For g = 1 To 4
  For x = 1 To 6
    For y = 1 To 6
      v = -m(x, y)
      For i = -1 To 1
        For j = -1 To 1
          v = v + m(x + i, y + j)
        Next
      Next
      If v = 3 Or (v = 2 And m(x, y) = 1) Then n(x, y) = 1 Else n(x, y) = 0
    Next
  Next
  For x = 1 To 6
    For y = 1 To 6
      m(x, y) = n(x, y)
    Next
  Next
Next
For x = 1 To 6
  For y = 1 To 6
    If m(x, y) = 1 Then s = s & x & y & " "
  Next
Next
WScript.Echo Trim(s) '> 23 34 42 43 44

Dim m(2, 1), t()
For i = 0 To 2 : For j = 0 To 1 : m(i, j) = i * 10 + j : Next : Next
ReDim t(UBound(m, 2), UBound(m, 1))
For i = 0 To UBound(m, 1) : For j = 0 To UBound(m, 2) : t(j, i) = m(i, j) : Next : Next
For j = 0 To UBound(t, 1)
  s = ""
  For i = 0 To UBound(t, 2) : s = s & t(j, i) & " " : Next
  WScript.Echo RTrim(s)
Next
'> 0 10 20
'> 1 11 21

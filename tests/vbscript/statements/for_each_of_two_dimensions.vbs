' The first subscript runs fastest.
Dim m(1, 2)
For i = 0 To 1
  For j = 0 To 2
    m(i, j) = i & j
  Next
Next
For Each v In m
  s = s & v & " "
Next
WScript.Echo Trim(s) '> 00 10 01 11 02 12

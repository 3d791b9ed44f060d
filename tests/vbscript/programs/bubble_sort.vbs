a = Array(34, 7, 23, 32, 5, 62, 32, 7, 1)
For i = UBound(a) To 1 Step -1
  For j = 0 To i - 1
    If a(j) > a(j + 1) Then
      t = a(j)
      a(j) = a(j + 1)
      a(j + 1) = t
    End If
  Next
Next
WScript.Echo Join(a) '> 1 5 7 7 23 32 32 34 62

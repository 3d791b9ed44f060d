Sub ShellSort(a)
  Dim gap, i, j, t
  gap = (UBound(a) + 1) \ 2
  Do While gap > 0
    For i = gap To UBound(a)
      t = a(i)
      j = i
      Do While j >= gap
        If a(j - gap) <= t Then Exit Do
        a(j) = a(j - gap)
        j = j - gap
      Loop
      a(j) = t
    Next
    gap = gap \ 2
  Loop
End Sub
a = Array(23, 4, 42, 8, 16, 15, -1, 0, 4)
ShellSort a
WScript.Echo Join(a) '> -1 0 4 4 8 15 16 23 42

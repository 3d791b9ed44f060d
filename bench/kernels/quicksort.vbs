Sub QuickSort(a, lo, hi)
  Dim i, j, pivot, t
  i = lo
  j = hi
  pivot = a((lo + hi) \ 2)
  Do While i <= j
    Do While a(i) < pivot
      i = i + 1
    Loop
    Do While a(j) > pivot
      j = j - 1
    Loop
    If i <= j Then
      t = a(i)
      a(i) = a(j)
      a(j) = t
      i = i + 1
      j = j - 1
    End If
  Loop
  If lo < j Then QuickSort a, lo, j
  If i < hi Then QuickSort a, i, hi
End Sub
Dim values(299999), n, last
last = 42
For n = 0 To 299999
  last = (last * 421 + 1663) Mod 7875
  values(n) = last * 100 + n Mod 100
Next
QuickSort values, 0, 299999
For n = 1 To 299999
  If values(n - 1) > values(n) Then WScript.Echo "mal"
Next
WScript.Echo values(0), values(150000), values(299999)

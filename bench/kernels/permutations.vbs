Dim count, check
Sub Swap(list, i, j)
  Dim kept
  kept = list(i)
  list(i) = list(j)
  list(j) = kept
End Sub
Sub Permute(list, k, n)
  Dim i
  If k = n Then
    count = count + 1
    check = (check * 3 + list(0) * list(n)) Mod 65521
    Exit Sub
  End If
  For i = k To n
    Swap list, k, i
    Permute list, k + 1, n
    Swap list, k, i
  Next
End Sub
Dim list(8), i
For i = 0 To 8
  list(i) = i + 1
Next
Permute list, 0, 8
WScript.Echo count, check

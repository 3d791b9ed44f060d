Function Distance(a, b)
  Dim i, j, n, m, cost, best, before(), now()
  n = Len(a)
  m = Len(b)
  ReDim before(m)
  ReDim now(m)
  For j = 0 To m
    before(j) = j
  Next
  For i = 1 To n
    now(0) = i
    For j = 1 To m
      If Mid(a, i, 1) = Mid(b, j, 1) Then
        cost = 0
      Else
        cost = 1
      End If
      best = before(j - 1) + cost
      If before(j) + 1 < best Then best = before(j) + 1
      If now(j - 1) + 1 < best Then best = now(j - 1) + 1
      now(j) = best
    Next
    For j = 0 To m
      before(j) = now(j)
    Next
  Next
  Distance = before(m)
End Function
Dim i, a, b, sum
For i = 1 To 40
  a = a & Chr(97 + (i * 7) Mod 26)
  b = b & Chr(97 + (i * 11 + 3) Mod 26)
Next
For i = 1 To 250
  sum = sum + Distance(a & i, b)
Next
WScript.Echo sum

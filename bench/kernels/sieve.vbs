Function Sieve(limit)
  Dim flags(), i, k, count
  ReDim flags(limit)
  For i = 2 To limit
    flags(i) = True
  Next
  count = 0
  For i = 2 To limit
    If flags(i) Then
      count = count + 1
      For k = i + i To limit Step i
        flags(k) = False
      Next
    End If
  Next
  Sieve = count
End Function
Dim round
For round = 1 To 5
  WScript.Echo Sieve(1000000)
Next

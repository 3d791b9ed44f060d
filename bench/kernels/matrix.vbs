Function Multiply(a, b, n)
  Dim c(), i, j, k, sum
  ReDim c(n - 1, n - 1)
  For i = 0 To n - 1
    For j = 0 To n - 1
      sum = 0
      For k = 0 To n - 1
        sum = sum + a(i, k) * b(k, j)
      Next
      c(i, j) = sum
    Next
  Next
  Multiply = c
End Function
Dim a(199, 199), b(199, 199), c, i, j
For i = 0 To 199
  For j = 0 To 199
    a(i, j) = (i + j) / 3
    b(i, j) = (i - j) / 7
  Next
Next
c = Multiply(a, b, 200)
WScript.Echo Int(c(10, 20)), Int(c(199, 0))

Sub Run(n)
  Dim a, b, c, d, x
  x = 0
  For a = 1 To n
    For b = 1 To n
      For c = 1 To n
        For d = 1 To n
          x = x + 1
        Next
      Next
      If x > 1000000 Then x = x - 1000000
    Next
  Next
  WScript.Echo x
End Sub
Run 52

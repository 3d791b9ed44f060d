ReDim a(2)
For Each v In a
  ReDim a(5) '! 10
Next

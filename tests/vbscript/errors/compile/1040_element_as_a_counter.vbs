Dim a(2)
For a(1) = 1 To 3 '! 1040
Next

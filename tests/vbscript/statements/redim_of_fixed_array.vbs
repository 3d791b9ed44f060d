Dim a(3)
ReDim a(5) '! 10

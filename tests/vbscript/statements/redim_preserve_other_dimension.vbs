ReDim a(1, 1)
ReDim Preserve a(2, 1) '! 9

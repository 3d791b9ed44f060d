Dim a(1)
ReDim Preserve a(2) '! 10

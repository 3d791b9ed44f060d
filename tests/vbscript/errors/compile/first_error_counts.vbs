Dim 5 '! 1010
Dim If

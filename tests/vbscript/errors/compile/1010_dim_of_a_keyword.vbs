Dim If '! 1010

For k = 0 To 20
  p = p + (4 / (8 * k + 1) - 2 / (8 * k + 4) - 1 / (8 * k + 5) - 1 / (8 * k + 6)) / 16 ^ k
Next
WScript.Echo Abs(p - 4 * Atn(1)) < 1e-14 '> True

Function Inside(size, limit)
  Dim row, column, cr, ci, zr, zi, zr2, zi2, k, count
  count = 0
  For row = 0 To size - 1
    ci = 2.0 * row / size - 1.0
    For column = 0 To size - 1
      cr = 2.0 * column / size - 1.5
      zr = 0.0
      zi = 0.0
      zr2 = 0.0
      zi2 = 0.0
      k = 0
      Do While k < limit And zr2 + zi2 <= 4.0
        zi = 2.0 * zr * zi + ci
        zr = zr2 - zi2 + cr
        zr2 = zr * zr
        zi2 = zi * zi
        k = k + 1
      Loop
      If k = limit Then count = count + 1
    Next
  Next
  Inside = count
End Function
WScript.Echo Inside(200, 120)

Function Mcd(ByVal a, ByVal b)
  Do While b <> 0
    t = a Mod b
    a = b
    b = t
  Loop
  Mcd = a
End Function
WScript.Echo Mcd(1071, 462), 1071 * 462 \ Mcd(1071, 462), Mcd(17, 5) '> 21 23562 1

' June 2021 began on a Tuesday.
primero = DateSerial(2021, 6, 1)
linea = Space(3 * (Weekday(primero, vbMonday) - 1))
For d = primero To DateSerial(2021, 7, 0)
  linea = linea & Right("  " & Day(d), 3)
  If Weekday(d, vbMonday) = 7 Then
    WScript.Echo linea
    linea = ""
  End If
Next
WScript.Echo linea
'>      1  2  3  4  5  6
'>   7  8  9 10 11 12 13
'>  14 15 16 17 18 19 20
'>  21 22 23 24 25 26 27
'>  28 29 30

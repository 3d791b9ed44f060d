Dim movimientos, primeros
Sub Mueve(n, de, a, por)
  If n = 0 Then Exit Sub
  Mueve n - 1, de, por, a
  movimientos = movimientos + 1
  If movimientos <= 3 Then primeros = primeros & de & a & " "
  Mueve n - 1, por, a, de
End Sub
Mueve 8, "A", "C", "B"
WScript.Echo movimientos, primeros '> 255 AB AC BC

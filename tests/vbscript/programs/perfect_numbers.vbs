For n = 2 To 500
  s = 1
  For d = 2 To Int(Sqr(n))
    If n Mod d = 0 Then
      s = s + d
      If d <> n \ d Then s = s + n \ d
    End If
  Next
  If s = n Then lista = lista & n & " "
Next
WScript.Echo Trim(lista) '> 6 28 496

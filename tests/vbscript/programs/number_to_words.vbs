Function EnLetra(n)
  unidades = Split("cero uno dos tres cuatro cinco seis siete ocho nueve diez once doce trece catorce quince " & _
                   "dieciséis diecisiete dieciocho diecinueve veinte")
  decenas = Split("- - veinti treinta cuarenta cincuenta sesenta setenta ochenta noventa")
  If n <= 20 Then
    EnLetra = unidades(n)
  ElseIf n < 30 Then
    EnLetra = decenas(2) & unidades(n - 20)
  Else
    EnLetra = decenas(n \ 10)
    If n Mod 10 > 0 Then EnLetra = EnLetra & " y " & unidades(n Mod 10)
  End If
End Function
WScript.Echo EnLetra(0), EnLetra(17), EnLetra(25), EnLetra(40), EnLetra(99) '> cero diecisiete veinticinco cuarenta noventa y nueve

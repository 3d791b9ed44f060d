Function Romano(ByVal n)
  valores = Array(1000, 900, 500, 400, 100, 90, 50, 40, 10, 9, 5, 4, 1)
  letras = Split("M CM D CD C XC L XL X IX V IV I")
  For i = 0 To 12
    Do While n >= valores(i)
      Romano = Romano & letras(i)
      n = n - valores(i)
    Loop
  Next
End Function

Function Valor(r)
  Dim i, v, previo
  For i = Len(r) To 1 Step -1
    v = Array(1, 5, 10, 50, 100, 500, 1000)(InStr("IVXLCDM", Mid(r, i, 1)) - 1)
    If v < previo Then Valor = Valor - v Else Valor = Valor + v
    previo = v
  Next
End Function

WScript.Echo Romano(1994), Romano(2024), Romano(3999), Romano(4) '> MCMXCIV MMXXIV MMMCMXCIX IV
For n = 1 To 3999
  If Valor(Romano(n)) <> n Then malos = malos + 1
Next
WScript.Echo malos & "" = "" '> True

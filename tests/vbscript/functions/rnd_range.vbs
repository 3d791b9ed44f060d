Dim menor, mayor
menor = 1 : mayor = 0
For i = 1 To 5000
  r = Rnd
  If r < menor Then menor = r
  If r > mayor Then mayor = r
Next
WScript.Echo menor >= 0, mayor < 1, mayor - menor > 0.9 '> True True True

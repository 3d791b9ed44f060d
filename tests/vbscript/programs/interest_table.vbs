capital = CCur(1000)
For a = 1 To 3
  capital = capital * 1.05
  WScript.Echo a & ": " & FormatCurrency(capital)
Next
'> 1: 1.050,00 €
'> 2: 1.102,50 €
'> 3: 1.157,63 €

WScript.Echo FormatCurrency(1234.5) '> 1.234,50 €
WScript.Echo FormatCurrency(0) '> 0,00 €
WScript.Echo FormatCurrency(1234.567, 0) '> 1.235 €

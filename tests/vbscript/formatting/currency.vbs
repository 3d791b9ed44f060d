WScript.Echo FormatCurrency(1), FormatCurrency(1234567.891, 1) '> 1,00 € 1.234.567,9 €
WScript.Echo FormatCurrency(-1234.5) '> -1.234,50 €

WScript.Echo FormatCurrency(-1234.5), FormatCurrency(-5, 0, vbTrue, vbTrue) '> -1.234,50 € (5 €)
SetLocale 1033
WScript.Echo FormatCurrency(-1234.5), FormatCurrency(-5, 0, vbTrue, vbFalse) '> ($1,234.50) -$5

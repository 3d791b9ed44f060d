SetLocale 1033
WScript.Echo FormatCurrency(1234.5) '> $1,234.50
WScript.Echo FormatCurrency(-5, 2, vbTrue, vbTrue) '> ($5.00)

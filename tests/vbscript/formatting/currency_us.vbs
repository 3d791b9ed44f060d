SetLocale 1033
WScript.Echo FormatCurrency(0.5), FormatCurrency(1234567.891, 1) '> $0.50 $1,234,567.9

SetLocale 1033
WScript.Echo FormatPercent(12.345, 1) '> 1,234.5%

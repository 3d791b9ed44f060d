' The Format functions under two locales.
WScript.Echo FormatNumber(1234567.891), FormatNumber(-0.5, 1), FormatNumber(0.5, 1, 0), FormatNumber(-1234.5, 2, -1, -1, 0), FormatNumber("12,5", 0), FormatNumber(1e15)
'> 1.234.567,89 -0,5 ,5 (1234,50) 13 1.000.000.000.000.000,00
WScript.Echo FormatCurrency(1234.5), FormatPercent(0.1234), FormatPercent(0.1234, 1), FormatNumber(2.5, 0), FormatNumber(3.5, 0), FormatNumber(-0.001), FormatNumber(999.999, 2)
'> 1.234,50 € 12,34% 12,3% 3 4 0,00 1.000,00
SetLocale 1033
WScript.Echo FormatNumber(1234567.891), FormatCurrency(-1234.5), FormatPercent(0.5), FormatDateTime(#1/5/2024 14:03:09#), FormatDateTime(#1/5/2024#, 1), CStr(1.5), CDbl("1,234.5"), FormatDateTime(#14:03#, 3)
'> 1,234,567.89 ($1,234.50) 50.00% 1/5/2024 2:03:09 PM Friday, January 5, 2024 1.5 1234.5 2:03:00 PM
WScript.Echo MonthName(1), WeekdayName(1), #1/2/2020 3:04:05 PM#, "1.5" + 1, CDate("1/2/2020") = #1/2/2020# '> January Sunday 1/2/2020 3:04:05 PM 2.5 True
SetLocale "en-gb"
WScript.Echo GetLocale, #1/2/2020#, FormatCurrency(2), CDate("5/6/2024") = #6/5/2024# '> 2057 02/01/2020 £2.00 True

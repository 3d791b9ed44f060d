SetLocale 1033
WScript.Echo MonthName(1), MonthName(9, True) '> January Sep

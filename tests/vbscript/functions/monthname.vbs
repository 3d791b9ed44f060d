WScript.Echo MonthName(1), MonthName(9), MonthName(12) '> enero septiembre diciembre

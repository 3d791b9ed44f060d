WScript.Echo MonthName(13) '! 5

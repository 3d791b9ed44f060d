WScript.Echo WeekdayName(8) '! 5

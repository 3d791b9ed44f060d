WScript.Echo WeekdayName(1, False, vbSunday) '> domingo
WScript.Echo WeekdayName(1, False, vbMonday), WeekdayName(7, False, vbMonday) '> lunes domingo

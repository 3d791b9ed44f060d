SetLocale 1033
WScript.Echo WeekdayName(1), WeekdayName(7) '> Sunday Saturday
WScript.Echo WeekdayName(2, True), WeekdayName(1, False, vbMonday) '> Mon Monday

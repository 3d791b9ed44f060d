On Error Resume Next
x = MonthName(Null) : WScript.Echo Err.Number : Err.Clear '> 94
x = MonthName("mayo", Null) : WScript.Echo Err.Number : Err.Clear '> 94
x = MonthName(13, Null) : WScript.Echo Err.Number : Err.Clear '> 94
x = MonthName("mayo") : WScript.Echo Err.Number : Err.Clear '> 13
x = MonthName(5, "si") : WScript.Echo Err.Number : Err.Clear '> 13
x = WeekdayName(Null) : WScript.Echo Err.Number : Err.Clear '> 94
x = WeekdayName("lunes", Null) : WScript.Echo Err.Number : Err.Clear '> 94
x = WeekdayName(9, False, Null) : WScript.Echo Err.Number : Err.Clear '> 94
x = WeekdayName("lunes") : WScript.Echo Err.Number : Err.Clear '> 13
WScript.Echo MonthName("5"), MonthName(4.5), MonthName(12, False) '> mayo abril diciembre

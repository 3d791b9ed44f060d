SetLocale 1033
WScript.Echo Month(CDate("1/2/2020")), Day(CDate("1/2/2020")) '> 1 2
WScript.Echo CDate("2:30 PM") = TimeSerial(14, 30, 0) '> True
WScript.Echo CDate("December 25, 2020") = DateSerial(2020, 12, 25) '> True

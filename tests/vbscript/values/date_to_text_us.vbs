SetLocale 1033
WScript.Echo #1/5/2020# & "|" & #1:05:09 PM# '> 1/5/2020|1:05:09 PM
WScript.Echo CDate("1/5/2020") = DateSerial(2020, 1, 5) '> True

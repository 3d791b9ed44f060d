WScript.Echo CDate("31/12/2020") '> 31/12/2020
WScript.Echo CDate("1/2/2020") = DateSerial(2020, 2, 1) '> True
WScript.Echo CDate(36526) '> 01/01/2000
WScript.Echo CDate("15:04:05") '> 15:04:05
WScript.Echo TypeName(CDate(0)) '> Date

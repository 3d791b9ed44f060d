WScript.Echo TimeSerial(14, 5, 9) '> 14:05:09
WScript.Echo TimeSerial(12 - 6, -15, 0) '> 5:45:00
WScript.Echo TimeSerial(0, 90, 0), TimeSerial(1, 0, 3600) '> 1:30:00 2:00:00

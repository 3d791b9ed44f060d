WScript.Echo Year(DateSerial(0, 1, 1)), Year(DateSerial(29, 1, 1)) '> 2000 2029
WScript.Echo Year(DateSerial(30, 1, 1)), Year(DateSerial(99, 1, 1)) '> 1930 1999
WScript.Echo Year(DateSerial(100, 1, 1)) '> 100

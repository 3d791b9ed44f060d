WScript.Echo DateSerial(2020, 2, 29) '> 29/02/2020
WScript.Echo DateSerial(2020, 14, 1) '> 01/02/2021
WScript.Echo DateSerial(2020, 3, 0) '> 29/02/2020
WScript.Echo DateSerial(2020, 1, -1) '> 30/12/2019
WScript.Echo DateSerial(2020 - 10, 8 - 2, 1 - 1) '> 31/05/2010

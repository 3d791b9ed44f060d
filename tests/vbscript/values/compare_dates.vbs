a = #1/31/2020# : b = #2/1/2020#
WScript.Echo a < b, b > a, a = DateSerial(2020, 1, 31) '> True True True
WScript.Echo a = 43861 '> True

' The fraction counts forward from midnight on either side of day zero.
d = DateSerial(1899, 12, 29) - 0.25
WScript.Echo CDbl(d), d '> -1,25 29/12/1899 6:00:00
WScript.Echo Hour(d), Day(d) '> 6 29

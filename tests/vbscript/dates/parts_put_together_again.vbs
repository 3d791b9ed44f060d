d = #8/23/2020 2:05:09 PM#
e = DateSerial(Year(d), Month(d), Day(d)) + TimeSerial(Hour(d), Minute(d), Second(d))
WScript.Echo e, DateDiff("s", d, e) '> 23/08/2020 14:05:09 0

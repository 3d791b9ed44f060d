' A day and a month alone lie in this year; a month and a year alone begin on the first.
WScript.Echo CDate("5/3") = DateSerial(Year(Now), 3, 5), CDate("31 enero") = DateSerial(Year(Now), 1, 31) '> True True
WScript.Echo CDate("enero 2020"), CDate("3/2020") '> 01/01/2020 01/03/2020
' What is no day of the month is a year, in front as well.
WScript.Echo CDate("30 febrero"), CDate("febrero 30"), CDate("45 enero") '> 01/02/1930 01/02/1930 01/01/1945
WScript.Echo CDate("30 febrero 5"), CDate("5 febrero 30"), CDate("1999 febrero 5") '> 05/02/1930 05/02/1930 05/02/1999
WScript.Echo IsDate("31 abril 2020"), IsDate("abril 31"), IsDate("0 enero") '> False True True

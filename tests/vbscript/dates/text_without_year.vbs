' A day and a month alone lie in this year; a month and a year alone begin on the first.
WScript.Echo CDate("5/3") = DateSerial(Year(Now), 3, 5), CDate("31 enero") = DateSerial(Year(Now), 1, 31) '> True True
WScript.Echo CDate("enero 2020"), CDate("3/2020") '> 01/01/2020 01/03/2020

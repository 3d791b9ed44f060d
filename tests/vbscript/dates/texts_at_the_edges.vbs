WScript.Echo IsDate("10:20:59"), IsDate("10:20:60"), IsDate("10:60"), IsDate("23:59"), IsDate("24:00"), IsDate("10:20:30:40"), IsDate("10:") '> True False False True False False False
WScript.Echo IsDate("12:30 AM"), IsDate("13:30 AM"), IsDate("13:30 PM"), IsDate("0:30 pm"), IsDate("10 a"), IsDate("10 p.m.") '> True False True True True True
WScript.Echo CDate("12:30 AM"), CDate("12:30 PM"), CDate("1:30 PM"), CDate("13:30 PM"), CDate("0:30 pm"), CDate("10 a"), CDate("10 p.m.") '> 0:30:00 12:30:00 13:30:00 13:30:00 12:30:00 10:00:00 22:00:00
WScript.Echo CDate("2020/12/25"), CDate("2020/25/12"), CDate("2020-02-29"), CDate("25/12/2020"), CDate("12/25/2020"), CDate("25-12-20") '> 25/12/2020 25/12/2020 29/02/2020 25/12/2020 25/12/2020 25/12/2020
WScript.Echo IsDate("2021-02-29"), IsDate("31/4/2020"), IsDate("29/2/1900"), IsDate("29/2/2000"), IsDate("0/1/2020"), IsDate("13/13/2020") '> False False False True False False
WScript.Echo CDate("1/1/29"), CDate("1/1/30"), CDate("1/1/0"), CDate("1/1/99"), Year("1/1/100"), IsDate("1/1/10000") '> 01/01/2029 01/01/1930 01/01/2000 01/01/1999 100 False
WScript.Echo CDate("25 dic 2020"), CDate("dic 25, 2020"), CDate("25 de diciembre de 2020"), CDate("december 25 2020"), CDate("vie 25 dic 2020"), CDate("dic 2020") '> 25/12/2020 25/12/2020 25/12/2020 25/12/2020 25/12/2020 01/12/2020
WScript.Echo CDate("25/12/2020 10:20"), CDate("10:20 25/12/2020"), CDate("dic 25 2020 3:04:05 PM") '> 25/12/2020 10:20:00 25/12/2020 10:20:00 25/12/2020 15:04:05
WScript.Echo IsDate("1,5"), IsDate("1"), IsDate("x"), IsDate(""), IsDate("dic"), IsDate("dic dic 2020"), IsDate("1/2/3/4"), IsDate("/1/2020"), IsDate("1/2/"), IsDate("10:20 11:30") '> False False False False False False False False False False
WScript.Echo Month("3/2020"), Year("3/2020"), Day("3/2020"), Day("5/3") & "/" & Month("5/3"), Day("3/25") & "/" & Month("3/25") '> 3 2020 1 5/3 25/3
SetLocale 1033
WScript.Echo CDate("1/2/2020"), CDate("13/2/2020"), CDate("2020/1/2"), TimeSerial(12, 30, 0), TimeSerial(0, 30, 0), TimeSerial(11, 59, 59), TimeSerial(23, 0, 0) '> 1/2/2020 2/13/2020 1/2/2020 12:30:00 PM 12:30:00 AM 11:59:59 AM 11:00:00 PM
WScript.Echo Day("3/5") & "/" & Month("3/5") '> 5/3

WScript.Echo IsDate("31/01/2020"), IsDate(#1/31/2020#), IsDate("10:30") '> True True True
WScript.Echo IsDate("hola"), IsDate(""), IsDate(5), IsDate(Null) '> False False False False

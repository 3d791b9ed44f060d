WScript.Echo IsDate("29/02/2020"), IsDate("29/02/2021"), IsDate("31/04/2020") '> True False False

WScript.Echo IsDate("1,5"), IsDate("12"), IsDate("-5"), IsDate("1.5") '> False False False False

WScript.Echo IsDate("25:00"), IsDate("23:59:59"), IsDate("10:60") '> False True False

WScript.Echo CDate("10 PM"), CDate("12:30 AM"), CDate("12:30 pm"), CDate("1:05:09 p.m.") '> 22:00:00 0:30:00 12:30:00 13:05:09
WScript.Echo IsDate("13:00 AM"), IsDate("24:00"), IsDate("10:60") '> False False False

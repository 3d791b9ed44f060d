' 13 cannot be a month, so the order is turned.
WScript.Echo Month(CDate("12/13/2020")), Day(CDate("12/13/2020")) '> 12 13

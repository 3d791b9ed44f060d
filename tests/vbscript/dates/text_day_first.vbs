WScript.Echo Month(CDate("1/2/2020")), Day(CDate("1/2/2020")) '> 2 1

WScript.Echo Year(CDate("1/1/29")), Year(CDate("1/1/30")), Year(CDate("1/1/99")) '> 2029 1930 1999

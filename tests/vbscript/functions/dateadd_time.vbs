d = #1/31/2020 11:59:59 PM#
WScript.Echo DateAdd("s", 1, d) '> 01/02/2020
WScript.Echo DateAdd("n", -60, d) '> 31/01/2020 22:59:59
WScript.Echo DateAdd("h", 25, d) '> 02/02/2020 0:59:59

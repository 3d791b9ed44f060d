d = #1/31/2020#
WScript.Echo DateAdd("yyyy", 1, d) '> 31/01/2021
WScript.Echo DateAdd("q", 1, d) '> 30/04/2020
WScript.Echo DateAdd("m", 1, d) '> 29/02/2020
WScript.Echo DateAdd("d", 1, d), DateAdd("y", 1, d), DateAdd("w", 1, d) '> 01/02/2020 01/02/2020 01/02/2020
WScript.Echo DateAdd("ww", -1, d) '> 24/01/2020

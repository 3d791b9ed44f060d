d = #8/23/2020 14:05:09#
WScript.Echo DatePart("yyyy", d), DatePart("q", d), DatePart("m", d), DatePart("d", d) '> 2020 3 8 23
WScript.Echo DatePart("y", d), DatePart("w", d) '> 236 1
WScript.Echo DatePart("h", d), DatePart("n", d), DatePart("s", d) '> 14 5 9

' 1 January 2021 is a Friday.
WScript.Echo DatePart("ww", #1/1/2021#), DatePart("ww", #1/3/2021#) '> 1 2
WScript.Echo DatePart("ww", #1/3/2021#, vbMonday) '> 1
WScript.Echo DatePart("ww", #1/1/2021#, vbMonday, vbFirstFourDays) '> 53
WScript.Echo DatePart("ww", #1/4/2021#, vbMonday, vbFirstFourDays) '> 1
WScript.Echo DatePart("ww", #6/15/2021#, vbMonday, vbFirstFourDays) '> 24

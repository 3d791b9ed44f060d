' "w" counts whole weeks, "ww" the Sundays passed. 4 January 2020 is a Saturday.
WScript.Echo DateDiff("w", #1/1/2020#, #1/14/2020#) '> 1
WScript.Echo DateDiff("w", #1/1/2020#, #1/15/2020#) '> 2
WScript.Echo DateDiff("ww", #1/4/2020#, #1/5/2020#) '> 1
WScript.Echo DateDiff("ww", #1/4/2020#, #1/5/2020#, vbMonday) '> 0
WScript.Echo DateDiff("ww", #1/5/2020#, #1/6/2020#, vbMonday) '> 1

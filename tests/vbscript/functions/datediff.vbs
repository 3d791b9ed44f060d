WScript.Echo DateDiff("yyyy", #12/31/2019#, #1/1/2020#) '> 1
WScript.Echo DateDiff("q", #3/31/2020#, #4/1/2020#) '> 1
WScript.Echo DateDiff("m", #1/31/2020#, #2/1/2020#) '> 1
WScript.Echo DateDiff("d", #2/28/2020#, #3/1/2020#) '> 2
WScript.Echo DateDiff("d", #3/1/2020#, #2/28/2020#) '> -2
WScript.Echo TypeName(DateDiff("d", #1/1/2020#, #1/2/2020#)) '> Long

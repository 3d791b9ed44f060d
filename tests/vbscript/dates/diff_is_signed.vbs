WScript.Echo DateDiff("m", #3/1/2020#, #1/31/2020#), DateDiff("yyyy", #1/1/2020#, #12/31/2019#) '> -2 -1
WScript.Echo DateDiff("n", #10:00:30 AM#, #10:01:00 AM#), DateDiff("s", #10:00:30 AM#, #10:00:00 AM#) '> 1 -30

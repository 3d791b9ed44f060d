WScript.Echo DateDiff("h", #10:59:00 AM#, #11:00:00 AM#) '> 1
WScript.Echo DateDiff("n", #10:00:00 AM#, #11:30:00 AM#) '> 90
WScript.Echo DateDiff("s", #1/1/2020#, #1/2/2020#) '> 86400

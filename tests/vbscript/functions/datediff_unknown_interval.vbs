WScript.Echo DateDiff("k", #1/1/2020#, #1/2/2020#) '! 5

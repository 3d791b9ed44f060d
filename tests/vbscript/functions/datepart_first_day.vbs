' 23 August 2020 is a Sunday.
WScript.Echo DatePart("w", #8/23/2020#) '> 1
WScript.Echo DatePart("w", #8/23/2020#, vbMonday) '> 7
WScript.Echo DatePart("w", #8/23/2020#, vbSaturday) '> 2

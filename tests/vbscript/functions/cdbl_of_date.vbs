WScript.Echo CDbl(#1/1/2000 6:00:00 AM#) '> 36526,25

d = DateSerial(1492, 10, 12)
WScript.Echo d, CDbl(d) '> 12/10/1492 -148732
WScript.Echo Weekday(d, vbMonday), DateDiff("d", d, #1/1/2000#) '> 3 185258
WScript.Echo DateAdd("d", 1, d) '> 13/10/1492

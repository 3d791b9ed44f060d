' Always month, day, year, whatever the locale.
WScript.Echo Day(#2/1/2020#), Month(#2/1/2020#) '> 1 2
WScript.Echo Hour(#10:30 PM#), Minute(#10:30 PM#) '> 22 30
WScript.Echo #2/1/2020 10:30:15 PM# '> 01/02/2020 22:30:15
WScript.Echo Year(#January 5, 1999#), Year(#5-Jan-99#) '> 1999 1999

' 23 August 2020 is a Sunday.
WScript.Echo Weekday(#8/23/2020#), Weekday(#8/24/2020#), Weekday(#8/29/2020#) '> 1 2 7
WScript.Echo Weekday(#8/23/2020#, vbMonday), Weekday(#8/24/2020#, vbMonday) '> 7 1
WScript.Echo IsNull(Weekday(Null)), Weekday(#8/23/2020#) = vbSunday '> True True

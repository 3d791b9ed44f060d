' vbUseSystem: Monday in Spain, Sunday in the United States. 24 August 2020 is a Monday.
WScript.Echo Weekday(#8/24/2020#, vbUseSystem) '> 1
SetLocale 1033
WScript.Echo Weekday(#8/24/2020#, vbUseSystem) '> 2

WScript.Echo TimeValue("14:05:09"), TimeValue("7:30") '> 14:05:09 7:30:00
WScript.Echo TimeValue("31/12/2020 23:00") '> 23:00:00

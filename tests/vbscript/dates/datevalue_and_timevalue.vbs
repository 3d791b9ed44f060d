t = "23/08/2020 14:05:09"
WScript.Echo DateValue(t), TimeValue(t) '> 23/08/2020 14:05:09
WScript.Echo DateValue(t) + TimeValue(t) = CDate(t) '> True

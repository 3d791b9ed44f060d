' Every interval of DateAdd, DateDiff and DatePart, at the edges of months, weeks and years.
d = #1/31/2024#
WScript.Echo DateAdd("m", 1, d), DateAdd("yyyy", 1, #2/29/2024#), DateAdd("q", 1, #11/30/2023#), DateAdd("ww", -1, d), DateAdd("w", 5, d), DateAdd("y", 1, d)
'> 29/02/2024 28/02/2025 29/02/2024 24/01/2024 05/02/2024 01/02/2024
WScript.Echo DateAdd("h", 25, d), DateAdd("n", -1, d), DateAdd("s", 86400, d), DateAdd("m", -13, d), DateAdd("q", -1, #5/31/2024#)
'> 01/02/2024 1:00:00 30/01/2024 23:59:00 01/02/2024 31/12/2022 29/02/2024
WScript.Echo DateDiff("yyyy", #12/31/2023#, #1/1/2024#), DateDiff("m", #1/31/2024#, #2/1/2024#), DateDiff("d", #1/1/2024 23:59#, #1/2/2024#), DateDiff("h", #10:59#, #11:00#)
'> 1 1 1 1
WScript.Echo DateDiff("ww", #1/6/2024#, #1/7/2024#), DateDiff("ww", #1/6/2024#, #1/7/2024#, 2), DateDiff("w", #1/1/2024#, #1/15/2024#), DateDiff("w", #1/1/2024#, #1/14/2024#)
'> 1 0 2 1
WScript.Echo DateDiff("q", #3/31/2024#, #4/1/2024#), DateDiff("n", #1:00:59#, #1:01:00#), DateDiff("s", #1/1/2024#, #12/31/2023#), DateDiff("y", #1/1/2024#, #12/31/2024#)
'> 1 1 -86400 365
WScript.Echo DatePart("ww", #12/31/2024#), DatePart("ww", #12/31/2024#, 2, 2), DatePart("y", #12/31/2024#), DatePart("w", #1/1/2024#), DatePart("w", #1/1/2024#, 2), DatePart("q", #8/1/2024#)
'> 53 1 366 2 1 3
WScript.Echo Weekday(#1/1/2024#), Weekday(#1/1/2024#, vbMonday), WeekdayName(2), WeekdayName(1, True, 2), MonthName(3), MonthName(9, True) '> 2 1 lunes lun marzo sep
WScript.Echo FormatDateTime(#1/5/2024 14:03:09#), FormatDateTime(#1/5/2024 14:03:09#, 1), FormatDateTime(#1/5/2024 14:03:09#, 2), FormatDateTime(#1/5/2024 14:03:09#, 3), FormatDateTime(#1/5/2024 14:03:09#, 4)
'> 05/01/2024 14:03:09 viernes, 5 de enero de 2024 05/01/2024 14:03:09 14:03
WScript.Echo #1/5/2024# + 1.5, #1/5/2024# - #1/1/2024#, TypeName(#1/5/2024# - #1/1/2024#), TypeName(#1/5/2024# + 1), CDbl(#1/5/2024 6:00#)
'> 06/01/2024 12:00:00 4 Double Date 45296,25
WScript.Echo DateSerial(2024, 2, 30), DateSerial(2024, 13, 1), DateSerial(2024, 0, 0), DateSerial(99, 1, 1), DateSerial(29, 1, 1), DateSerial(30, 1, 1)
'> 01/03/2024 01/01/2025 30/11/2023 01/01/1999 01/01/2029 01/01/1930
WScript.Echo TimeSerial(25, 61, 61), TimeSerial(0, -1, 0), TimeSerial(12, 0, 0) '> 31/12/1899 2:02:01 0:01:00 12:00:00

' A function on dates a line.
'after ../expressions.inc
X "DateAdd(""m"", 1, #1/31/2024#)" '> Date 2/29/2024
X "DateAdd(""yyyy"", 1, #2/29/2024#)" '> Date 2/28/2025
X "DateAdd(""w"", 1, #1/1/2024#)" '> Date 1/2/2024
X "DateAdd(""ww"", 1, #1/1/2024#)" '> Date 1/8/2024
X "DateAdd(""y"", 1, #1/1/2024#)" '> Date 1/2/2024
X "DateAdd(""n"", 90, #1/1/2024#)" '> Date 1/1/2024 1:30:00 AM
X "DateAdd(""x"", 1, #1/1/2024#)" '> error 5
X "DateAdd("""", 1, #1/1/2024#)" '> error 5
X "DateAdd(""D"", 1, #1/1/2024#)" '> Date 1/2/2024
X "DateDiff(""yyyy"", #12/31/2023#, #1/1/2024#)" '> Long 1
X "DateDiff(""q"", #3/31/2024#, #4/1/2024#)" '> Long 1
X "DateDiff(""w"", #1/1/2024#, #1/15/2024#)" '> Long 2
X "DateDiff(""ww"", #1/6/2024#, #1/7/2024#)" '> Long 1
X "DateDiff(""ww"", #1/6/2024#, #1/7/2024#, 2)" '> Long 0
X "DateDiff(""h"", #1:59#, #2:00#)" '> Long 1
X "DateDiff(""d"", #1/2/2024#, #1/1/2024#)" '> Long -1
X "DatePart(""q"", #5/1/2024#)" '> Integer 2
X "DatePart(""y"", #12/31/2024#)" '> Integer 366
X "DatePart(""w"", #1/7/2024#)" '> Integer 1
X "DatePart(""ww"", #12/31/2024#)" '> Integer 53
X "DatePart(""ww"", #12/30/2024#, 2, 2)" '> Integer 1
X "Weekday(#1/7/2024#)" '> Integer 1
X "Weekday(#1/7/2024#, 2)" '> Integer 7
X "Weekday(#1/7/2024#, 8)" '> error 5
X "DateSerial(24, 1, 1)" '> Date 1/1/2024
X "DateSerial(30, 1, 1)" '> Date 1/1/1930
X "DateSerial(29, 1, 1)" '> Date 1/1/2029
X "DateSerial(2024, 14, -1)" '> Date 1/30/2025
X "DateSerial(9999, 12, 32)" '> error 5
X "TimeSerial(12, -15, 0)" '> Date 11:45:00 AM
X "TimeSerial(0, 0, -1)" '> Date 12:00:01 AM
X "CDate(""12:30"")" '> Date 12:30:00 PM
X "CDate(""1/2/2020 1 PM"")" '> Date 1/2/2020 1:00:00 PM
X "CDate(""13/1/2020"")" '> Date 1/13/2020
X "CDate(""2/30/2020"")" '> error 13
X "CDate(-1)" '> Date 12/29/1899
X "CDate(3000000)" '> error 6
X "CDbl(#12/30/1899 6:00 PM#)" '> Double 0.75
X "#1/1/2020# + 1" '> Date 1/2/2020
X "#1/2/2020# - #1/1/2020#" '> Double 1
X "#1/1/2020# + ""1""" '> Date 1/2/2020
X "#1/1/2020# * 1" '> Double 43831
X "#1/1/2020# & """"" '> String 1/1/2020
X "Hour(0.5)" '> Integer 12
X "Minute(""10:42"")" '> Integer 42
X "Year(0)" '> Integer 1899
X "Month(60000)" '> Integer 4

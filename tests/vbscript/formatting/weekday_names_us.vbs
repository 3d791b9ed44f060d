SetLocale 1033
For d = 1 To 7
  s = s & WeekdayName(d, True, vbSunday) & " "
Next
WScript.Echo Trim(s) '> Sun Mon Tue Wed Thu Fri Sat

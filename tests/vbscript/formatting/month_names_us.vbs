SetLocale 1033
For m = 1 To 12
  s = s & MonthName(m, True) & " "
Next
WScript.Echo Trim(s) '> Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec

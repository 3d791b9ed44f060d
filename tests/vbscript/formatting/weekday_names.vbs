For d = 1 To 7
  s = s & WeekdayName(d, False, vbMonday) & " "
Next
WScript.Echo Trim(s) '> lunes martes miércoles jueves viernes sábado domingo

WScript.Echo CDate(0), CDate(0.5) '> 0:00:00 12:00:00

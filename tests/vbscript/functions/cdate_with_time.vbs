d = CDate("28/02/2021 16:30")
WScript.Echo d '> 28/02/2021 16:30:00
WScript.Echo CDate(36526.75) '> 01/01/2000 18:00:00

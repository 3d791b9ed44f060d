Function Two(n) : Two = Right("0" & n, 2) : End Function
Function Iso(d)
  Iso = Year(d) & "-" & Two(Month(d)) & "-" & Two(Day(d)) & "T" & Two(Hour(d)) & ":" & Two(Minute(d)) & ":" & Two(Second(d))
End Function
WScript.Echo Iso(#1/2/2003 4:05:06#) '> 2003-01-02T04:05:06
WScript.Echo Iso(DateAdd("s", 1, #12/31/1999 23:59:59#)) '> 2000-01-01T00:00:00
WScript.Echo Iso(DateAdd("m", 1, #1/31/2023#)) '> 2023-02-28T00:00:00
WScript.Echo Iso(DateAdd("n", -90, #3/1/2024 1:00:00 AM#)) '> 2024-02-29T23:30:00

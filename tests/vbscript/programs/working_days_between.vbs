' Mondays to Fridays from the first to the last day, both counted.
Function WorkingDays(a, b)
  Dim d
  For d = a To b
    If Weekday(d, vbMonday) < 6 Then WorkingDays = WorkingDays + 1
  Next
End Function
WScript.Echo WorkingDays(#1/1/2024#, #1/31/2024#) '> 23
WScript.Echo WorkingDays(DateSerial(2023, 2, 1), DateSerial(2023, 2, 28)) '> 20
WScript.Echo WorkingDays(#12/30/2023#, #12/31/2023# + 1) '> 1

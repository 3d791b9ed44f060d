d = DateSerial(2021, 3, 1)
Do Until Weekday(d, vbMonday) = 1
  d = d + 1
Loop
WScript.Echo d '> 01/03/2021
d = DateSerial(2021, 4, 1)
Do Until Weekday(d, vbMonday) = 1
  d = d + 1
Loop
WScript.Echo d '> 05/04/2021

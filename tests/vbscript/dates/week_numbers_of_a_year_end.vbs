For i = 0 To 4
  s = s & DatePart("ww", DateSerial(2020, 12, 30) + i, vbMonday, vbFirstFourDays) & " "
Next
WScript.Echo Trim(s) '> 53 53 53 53 53
WScript.Echo DatePart("ww", #1/4/2021#, vbMonday, vbFirstFourDays) '> 1

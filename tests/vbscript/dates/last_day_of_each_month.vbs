For m = 1 To 12
  s = s & Day(DateSerial(2021, m + 1, 0)) & " "
Next
WScript.Echo Trim(s) '> 31 28 31 30 31 30 31 31 30 31 30 31

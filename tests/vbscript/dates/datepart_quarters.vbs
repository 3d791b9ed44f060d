For m = 1 To 12
  s = s & DatePart("q", DateSerial(2020, m, 15))
Next
WScript.Echo s '> 111222333444

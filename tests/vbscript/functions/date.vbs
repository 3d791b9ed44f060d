WScript.Echo TypeName(Date) '> Date
WScript.Echo CDbl(Date) = Int(CDbl(Date)) '> True
WScript.Echo Date = DateSerial(Year(Now), Month(Now), Day(Now)) '> True
WScript.Echo Date() = Date '> True

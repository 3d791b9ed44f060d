' A date literal that names no year means the year in which it is compiled; month before day where both are possible.
y = Year(Date)
WScript.Echo #3/4# = DateSerial(y, 3, 4) '> True
WScript.Echo #12/31# = DateSerial(y, 12, 31) '> True
WScript.Echo #13/2# = DateSerial(y, 2, 13) '> True
WScript.Echo #Jan 2# = DateSerial(y, 1, 2) '> True
WScript.Echo #2 January# = DateSerial(y, 1, 2) '> True
WScript.Echo #5-Aug 6:30 PM# = DateSerial(y, 8, 5) + TimeSerial(18, 30, 0) '> True
WScript.Echo Eval("#7/8#") = DateSerial(y, 7, 8) '> True
Execute "x = #10/11#"
WScript.Echo x = DateSerial(y, 10, 11) '> True
Sub InAProcedure
    Execute "Dim d : d = #6/7#"
    WScript.Echo d = DateSerial(y, 6, 7) '> True
End Sub
InAProcedure
' What is no day of a month is a year.
WScript.Echo #2/30# = DateSerial(1930, 2, 1) '> True
WScript.Echo #Feb 30# = DateSerial(1930, 2, 1) '> True
WScript.Echo #2/2020# = DateSerial(2020, 2, 1) '> True
WScript.Echo #Mar 2020# = DateSerial(2020, 3, 1) '> True

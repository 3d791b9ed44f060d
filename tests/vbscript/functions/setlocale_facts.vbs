WScript.Echo SetLocale(1033) & " " & SetLocale() & " " & (GetLocale() = 1033) '> 3082 1033 False
SetLocale "1033"
WScript.Echo GetLocale() '> 1033
SetLocale "DE"
WScript.Echo GetLocale() & " " & CStr(2.25) & " " & FormatNumber(9876.5) & " " & Month("07.11.2024") '> 1031 2,25 9.876,50 11
SetLocale 1036
WScript.Echo Day(DateValue("5/6/2024")) & " " & Month(DateValue("5/6/2024")) '> 5 6
SetLocale 1033
WScript.Echo Day(DateValue("5/6/2024")) & " " & Month(DateValue("5/6/2024")) '> 6 5
SetLocale 1041
WScript.Echo CStr(2.25) & " " & FormatNumber(9876.5) '> 2.25 9,876.50
SetLocale 1033
On Error Resume Next
SetLocale Null
WScript.Echo Err.Number & " " & GetLocale() '> 94 1033
Err.Clear
SetLocale 99999
WScript.Echo Err.Number & " " & GetLocale() '> 447 1033

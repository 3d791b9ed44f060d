' Where numbers are written with a point, it separates the parts of a date only if dates are written with it, too.
Sub Try(text)
    Dim parts
    parts = IsDate(text)
    On Error Resume Next
    parts = parts & " " & Day(text) & "." & Month(text)
    parts = parts & " " & Err.Number
    Err.Clear
    parts = parts & " " & CDate(text)
    parts = parts & " " & Err.Number
    Err.Clear
    parts = parts & " " & DateValue(text)
    parts = parts & " " & Err.Number
    WScript.Echo parts
End Sub
SetLocale 1033
Try "27.11.2024" '> False 13 13 13
Try "5.6.2024" '> False 13 13 13
Try "2024.11.27" '> False 13 13 13
Try "5.6.2024 10:30" '> False 13 13 13
Try "27/11/2024" '> True 27.11 0 11/27/2024 0 11/27/2024 0
Try "5-6-2024" '> True 6.5 0 5/6/2024 0 5/6/2024 0
Try "Jan. 5, 2020" '> True 5.1 0 1/5/2020 0 1/5/2020 0
SetLocale 2057
Try "27.11.2024" '> False 13 13 13
Try "27/11/2024" '> True 27.11 0 27/11/2024 0 27/11/2024 0
SetLocale 1041
Try "2024.11.27" '> False 13 13 13
SetLocale 2055
Try "27.11.2024" '> True 27.11 0 27.11.2024 0 27.11.2024 0
SetLocale 1031
Try "5.6.2024" '> True 5.6 0 05.06.2024 0 05.06.2024 0
WScript.Echo IsDate("7.11") & " " & Day("7.11") & " " & Month("7.11") '> True 7 11
SetLocale 3082
Try "5.6.2024" '> True 5.6 0 05/06/2024 0 05/06/2024 0
SetLocale 1033
On Error Resume Next
For Each f In Array("Year", "Month", "Day", "Weekday", "Hour", "DateValue", "TimeValue", "CDate")
    x = Eval(f & "(""27.11.2024"")")
    WScript.Echo f & " " & Err.Number
    Err.Clear
Next
'> Year 13
'> Month 13
'> Day 13
'> Weekday 13
'> Hour 13
'> DateValue 13
'> TimeValue 13
'> CDate 13
x = DateAdd("d", 1, "27.11.2024")
WScript.Echo "DateAdd " & Err.Number '> DateAdd 13
Err.Clear
x = DateDiff("d", "1/1/2024", "27.11.2024")
WScript.Echo "DateDiff " & Err.Number '> DateDiff 13
Err.Clear
x = FormatDateTime("27.11.2024", 2)
WScript.Echo "FormatDateTime " & Err.Number '> FormatDateTime 13

' A Null date passes through, a Null of any other kind does not.
Sub T(s)
  On Error Resume Next
  Dim v
  v = Eval(s)
  If Err.Number <> 0 Then
    v = "error " & Err.Number
  ElseIf IsNull(v) Then
    v = "Null"
  Else
    v = TypeName(v) & " " & v
  End If
  WScript.Echo s, "=", v
End Sub
T "MonthName(""may"",Null)" '> MonthName("may",Null) = error 94
T "MonthName(Null)" '> MonthName(Null) = error 94
T "MonthName(0)" '> MonthName(0) = error 5
T "MonthName(13)" '> MonthName(13) = error 5
T "WeekdayName(Null)" '> WeekdayName(Null) = error 94
T "WeekdayName(1,Null)" '> WeekdayName(1,Null) = error 94
T "WeekdayName(1,False,Null)" '> WeekdayName(1,False,Null) = error 94
T "WeekdayName(""x"",Null)" '> WeekdayName("x",Null) = error 94
T "WeekdayName(8)" '> WeekdayName(8) = error 5
T "WeekdayName(0)" '> WeekdayName(0) = error 5
T "Weekday(Null)" '> Weekday(Null) = Null
T "Weekday(#1/1/2020#,Null)" '> Weekday(#1/1/2020#,Null) = error 94
T "Weekday(#1/1/2020#,8)" '> Weekday(#1/1/2020#,8) = error 5
T "Month(Null)" '> Month(Null) = Null
T "Day(Null)" '> Day(Null) = Null
T "Year(Null)" '> Year(Null) = Null
T "Hour(Null)" '> Hour(Null) = Null
T "Minute(Null)" '> Minute(Null) = Null
T "Second(Null)" '> Second(Null) = Null
T "DateValue(Null)" '> DateValue(Null) = error 94
T "TimeValue(Null)" '> TimeValue(Null) = error 94
T "DateValue(5)" '> DateValue(5) = error 13
T "TimeValue(5)" '> TimeValue(5) = error 13
T "TimeValue(0.5)" '> TimeValue(0.5) = error 13
T "DateValue(True)" '> DateValue(True) = error 13
T "DateValue(Empty)" '> DateValue(Empty) = error 13
T "TimeValue(Empty)" '> TimeValue(Empty) = error 13
T "DateSerial(Null,1,1)" '> DateSerial(Null,1,1) = error 94
T "TimeSerial(1,Null,1)" '> TimeSerial(1,Null,1) = error 94
T "DateAdd(Null,1,Now)" '> DateAdd(Null,1,Now) = error 94
T "DateAdd(""d"",Null,Now)" '> DateAdd("d",Null,Now) = error 94
T "DateAdd(""d"",1,Null)" '> DateAdd("d",1,Null) = Null
T "DateDiff(""d"",Null,Now)" '> DateDiff("d",Null,Now) = Null
T "DateDiff(Null,Now,Now)" '> DateDiff(Null,Now,Now) = error 94
T "DateDiff(""x"",Null,Now)" '> DateDiff("x",Null,Now) = error 5
T "DatePart(""d"",Null)" '> DatePart("d",Null) = Null
T "DatePart(""x"",Null)" '> DatePart("x",Null) = error 5
T "DatePart(Null,Now)" '> DatePart(Null,Now) = error 94
T "FormatDateTime(Null)" '> FormatDateTime(Null) = error 13
T "FormatDateTime(Now,Null)" '> FormatDateTime(Now,Null) = error 94
T "FormatDateTime(Now,9)" '> FormatDateTime(Now,9) = error 5
T "FormatCurrency(Null)" '> FormatCurrency(Null) = error 13
T "FormatNumber(Null)" '> FormatNumber(Null) = error 13
T "FormatPercent(Null)" '> FormatPercent(Null) = error 13
T "FormatNumber(5,Null)" '> FormatNumber(5,Null) = error 94
T "FormatPercent(5,Null)" '> FormatPercent(5,Null) = error 94
T "FormatCurrency(5,Null)" '> FormatCurrency(5,Null) = error 94
T "FormatNumber(5,1,Null)" '> FormatNumber(5,1,Null) = error 94
T "FormatNumber(5,1,0,Null)" '> FormatNumber(5,1,0,Null) = error 94
T "FormatNumber(5,1,0,0,Null)" '> FormatNumber(5,1,0,0,Null) = error 94
T "FormatNumber("""")" '> FormatNumber("") = error 13
T "FormatNumber(5,-2)" '> FormatNumber(5,-2) = error 5
T "FormatNumber(5,300)" '> FormatNumber(5,300) = error 5

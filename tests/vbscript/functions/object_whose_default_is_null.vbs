' An object stands for the value of its default member in every function: where that is Null, Null comes out or fails
' as Null itself does.
SetLocale 1033
Class NullObject
    Public Default Property Get Value() : Value = Null : End Property
End Class
Dim o
Set o = New NullObject
Sub T(list)
    Dim call_, results
    On Error Resume Next
    For Each call_ In Split(list, "|")
        r = "?"
        r = Eval(call_)
        If Err.Number <> 0 Then
            results = results & " " & Err.Number
        ElseIf IsNull(r) Then
            results = results & " Null"
        Else
            results = results & " " & r
        End If
        Err.Clear
    Next
    WScript.Echo Trim(results)
End Sub
T "Abs(o)|Int(o)|Fix(o)|Round(o)|Hex(o)|Oct(o)" '> Null Null Null Null Null Null
T "Len(o)|LenB(o)|LCase(o)|UCase(o)|Trim(o)|LTrim(o)|RTrim(o)" '> Null Null Null Null Null Null Null
T "Left(o, 1)|Right(o, 1)|Mid(o, 1)|Mid(o, 1, 1)|LeftB(o, 1)|RightB(o, 1)|MidB(o, 1)" '> Null Null Null Null Null Null Null
T "Left(o, -1)|Right(o, -1)|Mid(o, 0)|Mid(o, 1, -1)|LeftB(o, -1)|RightB(o, -1)|MidB(o, 0)" '> 5 5 5 5 5 5 5
T "Left(""a"", o)|Right(""a"", o)|Mid(""a"", o)|Mid(""a"", 0, o)|LeftB(""a"", o)|MidB(""a"", 0, o)" '> 94 94 94 94 94 94
T "InStr(o, ""a"")|InStr(""a"", o)|InStr(1, o, ""a"")|InStr(1, ""a"", o)|InStr(0, o, ""a"")|InStr(o, ""a"", ""a"")" '> Null Null Null Null 5 94
T "InStrB(o, ""a"")|InStrB(""a"", o)|InStrB(1, ""a"", o)|InStrB(0, ""a"", o)" '> Null Null Null 5
T "InStrRev(o, ""a"")|InStrRev(""a"", o)|InStrRev(""a"", ""a"", o)" '> 94 94 94
T "StrComp(o, ""a"")|StrComp(""a"", o)|StrComp(""a"", ""a"", o)|String(o, ""a"")|String(1, o)" '> Null Null 94 Null Null
T "Year(o)|Month(o)|Day(o)|Weekday(o)|Hour(o)|Minute(o)|Second(o)|Weekday(0, o)" '> Null Null Null Null Null Null Null 94
T "DateAdd(""d"", 1, o)|DateDiff(""d"", o, 0)|DateDiff(""d"", 0, o)|DatePart(""d"", o)|DateAdd(""d"", o, 0)" '> Null Null Null Null 94
T "DateValue(o)|TimeValue(o)|MonthName(o)|MonthName(1, o)|WeekdayName(o)" '> 94 94 94 94 94
T "FormatNumber(o)|FormatCurrency(o)|FormatPercent(o)|FormatDateTime(o)" '> 13 13 13 13
T "FormatNumber(1, o)|FormatCurrency(1, o)|FormatPercent(1, o)|FormatDateTime(1, o)" '> 94 94 94 94
T "Join(o)|Join(Array(1), o)|Filter(o, ""a"")|Filter(Array(1), o)|UBound(o)|LBound(o)" '> 94 94 94 94 13 13
T "Replace(o, ""a"", ""b"")|Replace(""a"", o, ""b"")|Split(o)|Split(""a"", o)|StrReverse(o)|Escape(o)" '> 94 94 94 94 94 94
T "CBool(o)|CByte(o)|CInt(o)|CLng(o)|CSng(o)|CDbl(o)|CCur(o)|CDate(o)|CStr(o)" '> 94 94 94 94 94 94 94 94 94
T "Asc(o)|AscW(o)|Chr(o)|ChrW(o)|Space(o)|Sgn(o)|Sqr(o)|Rnd(o)|RGB(o, 0, 0)" '> 94 94 94 94 94 94 94 94 94
T "IsNumeric(o)|IsDate(o)|IsObject(o)|IsEmpty(o)|IsArray(o)" '> False False True False False

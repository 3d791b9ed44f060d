' In which order functions look at their arguments, and what they refuse.
'after ../statements.inc
Q "r = Mid(""road"", ""x"", Null)" '> error 94
Q "r = Mid(""road"", 0, Null)" '> error 94
Q "r = Mid(""road"", Null, 0)" '> error 94
Q "r = Mid(Null, -2, -2)" '> error 5
Q "r = Mid(Null, 4, 1)" '> ok Null
Q "r = Mid(Null, ""x"")" '> error 13
Q "r = Left(Null, -1)" '> error 5
Q "r = Left(Null, ""x"")" '> error 13
Q "r = Left(""road"", Null)" '> error 94
Q "r = Right(Null, -1)" '> error 5
Q "r = String(-1, ""a"")" '> error 5
Q "r = String(-1, Null)" '> error 5
Q "r = String(Null, ""a"")" '> ok Null
Q "r = String(3, """")" '> error 5
Q "r = String(2, 65)" '> ok AA
Q "r = String(2, 321)" '> ok AA
Q "r = Space(-1)" '> error 5
Q "r = InStr(0, Null, ""a"")" '> error 5
Q "r = InStr(-1, ""a"", ""a"")" '> error 5
Q "r = InStr(Null, ""a"", ""a"")" '> error 94
Q "r = InStr(1, ""a"", ""a"", 5)" '> error 5
Q "r = InStr(1, Null, ""a"", 5)" '> error 5
Q "r = InStrRev(Null, ""a"", 0)" '> error 94
Q "r = InStrRev(""a"", ""a"", 0)" '> error 5
Q "r = InStrRev(""a"", ""a"", -2)" '> error 5
Q "r = MonthName(""may"", Null)" '> error 94
Q "r = MonthName(""may"")" '> error 13
Q "r = MonthName(13)" '> error 5
Q "r = MonthName(0)" '> error 5
Q "r = WeekdayName(8)" '> error 5
Q "r = WeekdayName(""x"", Null)" '> error 94
Q "r = FormatCurrency(Null)" '> error 13
Q "r = FormatCurrency(5, Null)" '> error 94
Q "r = FormatNumber(Null, Null)" '> error 94
Q "r = FormatNumber(""x"")" '> error 13
Q "r = FormatNumber(5, -2)" '> error 5
Q "r = FormatNumber(5, 256)" '> error 5
Q "r = FormatDateTime(Null)" '> error 13
Q "r = FormatDateTime(0, 5)" '> error 5
Q "r = FormatDateTime(0, Null)" '> error 94
Q "r = FormatPercent(Null)" '> error 13
Q "r = Escape(Null)" '> error 94
Q "r = Unescape(Null)" '> error 94
Q "r = ChrB(300)" '> error 6
Q "r = ChrB(-1)" '> error 6
Q "r = AscB("""")" '> error 5
Q "r = Asc("""")" '> error 5
Q "r = AscW("""")" '> error 5
Q "r = Chr(256)" '> error 5
Q "r = Chr(-1)" '> error 5
Q "r = ChrW(65536)" '> error 5
Q "r = DateValue(5)" '> error 13
Q "r = DateValue(Null)" '> error 94
Q "r = TimeValue(Null)" '> error 94
Q "r = TimeValue(0.5)" '> error 13
Q "r = DateValue(Empty)" '> error 13
Q "r = DateValue(#1/2/2020 10:30#)" '> ok Date 1/2/2020
Q "r = TimeValue(#1/2/2020 10:30#)" '> ok Date 10:30:00 AM
Q "r = 5 : r = Randomize(4)" '> error 13 Integer 5
Q "r = 5 : r = Randomize" '> error 13 Integer 5
Q "Randomize ""x""" '> error 13
Q "Randomize Null" '> error 94
Q "r = TypeName(CreateObject(""vbscript.regexp""))" '> ok IRegExp2
Q "CreateObject ""nope.nope""" '> error 429
Q "r = CreateObject(Null)" '> error 94
Q "Set x = New RegExp : x.Pattern = ""b"" : r = x.Replace(""a b"", True)" '> ok a -1
Q "r = x.Replace(""a b"", 12)" '> ok a 12
Q "r = x.Replace(""a b"", False)" '> ok a 0
Q "r = x.Replace(""a b"", Null)" '> error 94
Q "r = x.Test(Null)" '> error 94

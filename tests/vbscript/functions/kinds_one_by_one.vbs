' What a value is, and other small functions, one a line.
'after ../expressions.inc
X "IsNumeric(""1,5"")" '> Boolean True
X "IsNumeric(""1.5.2"")" '> Boolean False
X "IsNumeric(""$5"")" '> Boolean True
X "IsNumeric(""(5)"")" '> Boolean True
X "IsNumeric(""5-"")" '> Boolean True
X "IsNumeric(""+5"")" '> Boolean True
X "IsNumeric(""--5"")" '> Boolean False
X "IsNumeric(""1e"")" '> Boolean False
X "IsNumeric(""5%"")" '> Boolean False
X "IsNumeric(""True"")" '> Boolean False
X "IsNumeric(""1/2/2020"")" '> Boolean False
X "IsDate(""1/2/2020"")" '> Boolean True
X "IsDate(""10:30"")" '> Boolean True
X "IsDate(5)" '> Boolean False
X "IsDate(""25:00"")" '> Boolean False
X "IsDate(""Feb 29, 2023"")" '> Boolean False
X "IsDate(""Jan 2020"")" '> Boolean True
X "IsDate("""")" '> Boolean False
X "TypeName(Nothing)" '> String Nothing
X "TypeName(Err)" '> String Object
X "VarType(Nothing)" '> Integer 9
X "VarType(Err)" '> Integer 3
X "ScriptEngine" '> String VBScript
X "TypeName(ScriptEngineMajorVersion)" '> String Long
X "RGB(255, 0, 0)" '> Long 255
X "RGB(300, 1, 1)" '> Long 66047
X "RGB(-1, 0, 0)" '> error 5
X "Escape(""a b+ñ€"")" '> String a%20b+%F1%u20AC
X "Unescape(""%u20AC%41%zz"")" '> String €A%zz
X "LenB(""abc"")" '> Long 6
X "LeftB(""abc"", 2)" '> String a
X "MidB(""abc"", 3, 2)" '> String b
X "InStrB(""abc"", ""b"")" '> Long 3
X "Space(2) & ""|""" '> String   ||
X "String(3, ""xy"")" '> String xxx
X "Len(12345)" '> Long 5
X "Len(Empty)" '> Long 0
X "Len(True)" '> Long 4
X "Trim(5)" '> String 5
X "UCase(Empty)" '> String |
X "Join(Array())" '> String |
X "UBound(Split(""a"", ""b""))" '> Long 0
X "Split(""a--b"", ""--"")(1)" '> String b
X "UBound(Split(""a b"", "" "", 0))" '> Long -1
X "MonthName(1)" '> String January
X "MonthName(12, True)" '> String Dec
X "WeekdayName(1)" '> String Sunday
X "WeekdayName(1, False, 2)" '> String Monday
X "WeekdayName(7, True, 1)" '> String Sat

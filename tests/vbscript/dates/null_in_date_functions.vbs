WScript.Echo IsNull(DateAdd("d", 1, Null)), IsNull(DateDiff("d", Null, Now)), IsNull(DatePart("d", Null)) '> True True True
WScript.Echo IsNull(Year(Null)), IsNull(Weekday(Null)), IsNull(Second(Null)) '> True True True

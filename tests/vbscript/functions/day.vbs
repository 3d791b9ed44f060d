WScript.Echo Day(#8/23/2020#), Day("31/12/1999"), Day(36526) '> 23 31 1
WScript.Echo IsNull(Day(Null)), TypeName(Day(1)) '> True Integer

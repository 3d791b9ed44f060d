WScript.Echo Hour(#2:05:09 PM#), Hour("23:59"), Hour(0.5) '> 14 23 12
WScript.Echo IsNull(Hour(Null)) '> True

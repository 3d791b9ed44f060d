WScript.Echo Minute(#2:05:09 PM#), Minute("23:59") '> 5 59
WScript.Echo IsNull(Minute(Null)) '> True

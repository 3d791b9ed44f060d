WScript.Echo Second(#2:05:09 PM#), Second("23:59:58") '> 9 58
WScript.Echo IsNull(Second(Null)) '> True

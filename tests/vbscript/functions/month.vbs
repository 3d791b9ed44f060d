WScript.Echo Month(#8/23/2020#), Month("31/12/1999") '> 8 12
WScript.Echo IsNull(Month(Null)) '> True

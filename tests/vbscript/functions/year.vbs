WScript.Echo Year(#8/23/2020#), Year("31/12/1999"), Year(0) '> 2020 1999 1899
WScript.Echo IsNull(Year(Null)) '> True

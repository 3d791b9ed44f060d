SetLocale 1033
WScript.Echo 1.5 & "", CDbl("2.5") * 2, IsNumeric("1,234.5") '> 1.5 5 True

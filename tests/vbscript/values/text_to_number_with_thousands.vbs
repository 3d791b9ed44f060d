WScript.Echo CDbl("1.000,5"), CDbl("1.234.567"), IsNumeric("1.000") '> 1000,5 1234567 True

WScript.Echo IsNumeric(5), IsNumeric("12"), IsNumeric("1,5"), IsNumeric(" -3 ") '> True True True True
WScript.Echo IsNumeric("&HFF"), IsNumeric("1e3"), IsNumeric(True), IsNumeric(Empty) '> True True True True
WScript.Echo IsNumeric(""), IsNumeric("5a"), IsNumeric(Null), IsNumeric(#1/1/2020#) '> False False False False

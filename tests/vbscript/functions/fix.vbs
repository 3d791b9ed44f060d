WScript.Echo Fix(2.7), Fix(-2.7), Fix(-0.5), Fix("3,9") '> 2 -2 0 3
WScript.Echo TypeName(Fix(2.5)), TypeName(Fix(7)) '> Double Integer
WScript.Echo IsNull(Fix(Null)) '> True

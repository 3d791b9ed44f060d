WScript.Echo Int(2.7), Int(-2.7), Int(-2), Int("5,7") '> 2 -3 -2 5
WScript.Echo TypeName(Int(2.5)), TypeName(Int(7)) '> Double Integer
WScript.Echo IsNull(Int(Null)) '> True

WScript.Echo IsNull(True And Null), False And Null '> True False
WScript.Echo IsNull(Null And True), Null And False, IsNull(Null And Null) '> True False True
WScript.Echo 0 And Null, Null And 0 '> 0 0

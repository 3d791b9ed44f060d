WScript.Echo IsNull(Null), IsNull(Null + 1) '> True True
WScript.Echo IsNull(Empty), IsNull(0), IsNull("") '> False False False

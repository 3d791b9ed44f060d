WScript.Echo IsNull(InStr(Null, "a")), IsNull(InStr("a", Null)) '> True True

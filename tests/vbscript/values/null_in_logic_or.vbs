WScript.Echo True Or Null, IsNull(False Or Null) '> True True
WScript.Echo Null Or True, IsNull(Null Or False), IsNull(Null Or Null) '> True True True

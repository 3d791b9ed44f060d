Dim nueva
WScript.Echo IsEmpty(nueva), IsEmpty(Empty) '> True True
WScript.Echo IsEmpty(0), IsEmpty(""), IsEmpty(Null) '> False False False
nueva = 1
nueva = Empty
WScript.Echo IsEmpty(nueva) '> True

Dim v
WScript.Echo IsObject(v), IsObject(5) '> False False
Set v = Nothing
WScript.Echo IsObject(v) '> True
Set v = New RegExp
WScript.Echo IsObject(v), IsObject(Err) '> True True

WScript.Echo Not True, Not 0, Not 5, Not -1 '> False -1 -6 0
WScript.Echo Not 1 = 2, Not 2.6 '> True -4
WScript.Echo IsNull(Not Null) '> True

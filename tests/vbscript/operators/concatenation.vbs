WScript.Echo "a" & 1 & 2.5 & True '> a12,5True
WScript.Echo 1 & 2, TypeName(1 & 2) '> 12 String
WScript.Echo "[" & Empty & "]", "[" & Null & "]" '> [] []
WScript.Echo IsNull(Null & Null) '> True

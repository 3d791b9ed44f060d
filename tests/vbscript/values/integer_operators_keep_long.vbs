WScript.Echo TypeName(100000 \ 7), TypeName(100000 Mod 7), TypeName(100000 And 1) '> Long Long Long

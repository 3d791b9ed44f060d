WScript.Echo Asc(Null) '! 94

WScript.Echo CInt(Null) '! 94

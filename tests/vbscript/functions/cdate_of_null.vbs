WScript.Echo CDate(Null) '! 94

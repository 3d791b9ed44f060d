WScript.Echo CBool(Null) '! 94

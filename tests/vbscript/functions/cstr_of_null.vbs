WScript.Echo CStr(Null) '! 94

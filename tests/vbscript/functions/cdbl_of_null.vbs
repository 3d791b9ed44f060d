WScript.Echo CDbl(Null) '! 94

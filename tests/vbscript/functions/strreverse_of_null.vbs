WScript.Echo StrReverse(Null) '! 94

WScript.Echo CInt(32767) '> 32767
WScript.Echo CInt(32768) '! 6

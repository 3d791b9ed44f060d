WScript.Echo CInt(True), CByte(False), True + 0 '> -1 0 -1
WScript.Echo CByte(True) '> 255

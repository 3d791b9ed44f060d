WScript.Echo CInt(-32768) '> -32768
WScript.Echo CInt(-32769) '! 6

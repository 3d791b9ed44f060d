WScript.Echo Hex(4294967296) '! 6

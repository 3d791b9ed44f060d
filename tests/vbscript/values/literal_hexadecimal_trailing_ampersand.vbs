WScript.Echo &HFFFF&, TypeName(&HFFFF&) '> 65535 Long
WScript.Echo &H8000&, &HFF& '> 32768 255
WScript.Echo TypeName(&HFF&) '> Long

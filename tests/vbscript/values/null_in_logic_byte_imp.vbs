x = CByte(0) Imp Null
WScript.Echo x, TypeName(x) '> 255 Byte

a = CByte(12) : b = CByte(10)
WScript.Echo a And b, TypeName(a And b), TypeName(a \ b), TypeName(a Mod b) '> 8 Byte Byte Byte

WScript.Echo Hex(255), Hex(0), Hex(4096) '> FF 0 1000
WScript.Echo Hex(-1), Hex(CLng(-1)) '> FFFF FFFFFFFF
WScript.Echo Hex(2.5), Hex("16"), Hex(Empty) '> 2 10 0
WScript.Echo IsNull(Hex(Null)) '> True

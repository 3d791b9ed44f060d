' The inverted bits of a Byte stand, whatever the Null on the other side is.
x = CByte(0) Imp Null
WScript.Echo x, TypeName(x) '> 255 Byte
x = CByte(15) Imp Null
WScript.Echo x, TypeName(x) '> 240 Byte
x = CByte(255) Imp Null
WScript.Echo x, TypeName(x) '> 0 Byte
' Others are Null unless all their bits are clear.
WScript.Echo IsNull(15 Imp Null), IsNull(True Imp Null), IsNull(CLng(1) Imp Null) '> True True True
WScript.Echo False Imp Null, 0 Imp Null, CLng(0) Imp Null '> True -1 -1
WScript.Echo Null Imp CByte(3), TypeName(Null Imp CByte(3)), IsNull(Null Imp CByte(0)) '> 3 Byte True

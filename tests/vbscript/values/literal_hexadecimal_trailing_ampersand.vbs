' 32 bits, and the value tells the type.
WScript.Echo &HFFFF&, TypeName(&HFFFF&) '> 65535 Long
WScript.Echo &H8000&, &HFF&, &HFFF0& '> 32768 255 65520
WScript.Echo TypeName(&HFF&), TypeName(&H2A&), TypeName(&H7FFF&), TypeName(&H8000&) '> Integer Integer Integer Long
WScript.Echo &HFFFFFFF0&, TypeName(&HFFFFFFF0&), TypeName(&HFFFF8000&), TypeName(&HFFFF7FFF&) '> -16 Integer Integer Long
WScript.Echo &HFFF0, TypeName(&HFFF0) '> -16 Integer

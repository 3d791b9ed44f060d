WScript.Echo &HFF, &h10, &HFFFF, &HFFFFFFFF '> 255 16 -1 -1
WScript.Echo TypeName(&HFF), TypeName(&HFFFF), TypeName(&H10000), TypeName(&HFFFFFFFF) '> Integer Integer Long Long

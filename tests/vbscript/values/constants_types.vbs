WScript.Echo vbEmpty, vbNull, vbInteger, vbLong, vbSingle, vbDouble, vbCurrency, vbDate '> 0 1 2 3 4 5 6 7
WScript.Echo vbString, vbObject, vbError, vbBoolean, vbVariant, vbDataObject, vbDecimal, vbByte, vbArray '> 8 9 10 11 12 13 14 17 8192

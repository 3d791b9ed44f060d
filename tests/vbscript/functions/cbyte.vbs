WScript.Echo CByte(0), CByte(255), CByte("17") '> 0 255 17
WScript.Echo CByte(2.5), CByte(3.5) '> 2 4
WScript.Echo TypeName(CByte(1)) '> Byte

WScript.Echo -CInt(-32768), TypeName(-CInt(-32768)) '> 32768 Long

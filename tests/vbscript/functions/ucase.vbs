WScript.Echo UCase("hola ñá 12") '> HOLA ÑÁ 12
WScript.Echo IsNull(UCase(Null)) '> True

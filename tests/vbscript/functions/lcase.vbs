WScript.Echo LCase("HoLa ÑÁ 12") '> hola ñá 12
WScript.Echo IsNull(LCase(Null)) '> True

a = Array("cero", "uno", "dos", "tres")
WScript.Echo a(0.5), a(1.5), a("2"), a(2.6) '> cero dos dos tres

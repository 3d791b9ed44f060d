WScript.Echo FormatDateTime("31/01/2020", vbLongDate) '> viernes, 31 de enero de 2020

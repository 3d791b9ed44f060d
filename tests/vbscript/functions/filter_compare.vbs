a = Array("Uno", "uno", "dos")
WScript.Echo UBound(Filter(a, "UNO")) '> -1
WScript.Echo Join(Filter(a, "UNO", True, vbTextCompare)) '> Uno uno

a = Filter(Array("pera", "manzana", "peral", "uva"), "per")
WScript.Echo UBound(a), Join(a, "-") '> 1 pera-peral

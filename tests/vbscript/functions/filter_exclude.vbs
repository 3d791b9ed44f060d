WScript.Echo Join(Filter(Array("pera", "manzana", "uva"), "an", False), "-") '> pera-uva

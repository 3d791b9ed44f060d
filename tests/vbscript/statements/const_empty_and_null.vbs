Const VACIA = Empty, NULA = Null, HEXA = &HFF
WScript.Echo TypeName(VACIA), TypeName(NULA), HEXA '> Empty Null 255

WScript.Echo VarType(1) = vbInteger, VarType("") = vbString, VarType(Empty) = vbEmpty '> True True True
WScript.Echo VarType(Array(1)) = vbArray + vbVariant '> True

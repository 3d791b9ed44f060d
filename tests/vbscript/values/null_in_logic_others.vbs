WScript.Echo IsNull(Null Xor True), IsNull(True Eqv Null), IsNull(Not Null) '> True True True
WScript.Echo Null Imp True, IsNull(Null Imp False), IsNull(True Imp Null), False Imp Null '> True True True True
WScript.Echo IsNull(Null Imp Null) '> True

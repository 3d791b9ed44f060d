WScript.Echo True And False, True Or False, True Xor True '> False True False
WScript.Echo True Eqv False, True Imp False, False Imp True '> False False True
WScript.Echo TypeName(True And True), TypeName(True And 1) '> Boolean Integer

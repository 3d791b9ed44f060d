WScript.Echo True Or False And False '> True
WScript.Echo True Xor True Or True '> False
WScript.Echo False Eqv False Xor True '> False
WScript.Echo False Imp True Eqv False '> True
WScript.Echo Not True Or True, Not (True Or True) '> True False

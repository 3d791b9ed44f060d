' A function's result may be left unused.
Abs -5
Call UCase("a")
Len("x")
WScript.Echo "fin" '> fin

WScript.Echo 12 And 10, 12 Or 10, 12 Xor 10 '> 8 14 6
WScript.Echo 5 Eqv 3, 5 Imp 3, Not 5 '> -7 -5 -6

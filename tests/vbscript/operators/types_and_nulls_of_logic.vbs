' Empty is a Long to logic, an Integer to arithmetic; Byte, Boolean and Null keep their own ways.
WScript.Echo TypeName(Empty And 12), TypeName(12 Or Empty), TypeName(Empty Xor True), TypeName(Empty Eqv Empty), TypeName(Not Empty) '> Long Long Long Long Long
WScript.Echo TypeName(Empty Imp True), TypeName(CByte(1) And Empty), TypeName(Empty Imp Null), Empty Imp Null '> Long Long Long -1
WScript.Echo (Empty And Null), IsNull(Empty Or Null), IsNull(Null And Empty), IsNull(Null Imp Empty), IsNull(Empty Eqv Null), IsNull(Empty Xor Null)
'> 0 True False True True True
WScript.Echo TypeName(Empty + Empty), TypeName(Empty - 1), TypeName(Empty * 2.5), TypeName(Empty / 1), TypeName(Empty \ 1), TypeName(Empty Mod 1)
'> Integer Integer Double Double Integer Integer
WScript.Echo TypeName(Empty ^ 2), TypeName(Empty & Empty), TypeName(-Empty), TypeName(+Empty) '> Double String Integer Empty
WScript.Echo TypeName(True + True), True + True, TypeName(-True), TypeName(True * 2), TypeName(True \ 1), TypeName(True / 1), TypeName(Not True)
'> Integer -2 Integer Integer Integer Double Boolean
WScript.Echo TypeName(True And 1), TypeName(True And CByte(1)), TypeName(True Mod 2), TypeName(CByte(1) And True), CByte(1) And True '> Integer Integer Integer Integer 1
WScript.Echo TypeName(CByte(15) Imp CByte(3)), CByte(15) Imp CByte(3), TypeName(Not CByte(15)), Not CByte(15), CByte(255) Imp Null '> Byte 243 Byte 240 0
WScript.Echo IsNull(CByte(15) Eqv Null), IsNull(Null Imp CByte(0)), TypeName(Null Imp CByte(255)), Null Imp -1, IsNull(Null Imp 5) '> True True Byte -1 False
WScript.Echo Null Or -1, Null And 0, IsNull(Null And 1), IsNull(Not Null), Null Imp True, True Imp False, IsNull(True Imp Null), False Imp Null
'> -1 0 True True True False True True
WScript.Echo &HFF And &H0F, &HF0 Or 15, 6 Xor 3, Not 5, 5 Eqv 3, 5 Imp 3, -1 And &HFFFF&, &HFFFF And 65535, 2 ^ 15 And &H8000& '> 15 255 5 -6 -7 -5 65535 65535 32768
WScript.Echo 7 \ 2, -7 \ 2, -7 Mod 3, 7 Mod -3, 7.6 \ 2.5, 7.5 Mod 2, 5 Mod 3 * 2, 5 * 3 Mod 4, 7 \ 2 * 2, 2 * 7 \ 4, 7 Mod 4 \ 2 '> 3 -3 -1 1 4 0 5 3 1 3 1
WScript.Echo 2 ^ 3 ^ 2, -2 ^ 2, 2 ^ -2, 2 ^ -2 ^ 2, Not 1 + 1, 1 + Not 1, 1 = Not 0, Not True = False, 1 & 2 + 3, 1 + 2 & 3 '> 64 4 0,25 0,0625 -3 -1 False True 15 33
WScript.Echo 1 < 2 = True, 1 = 1 = 1, "a" & "b" = "ab", True Or False And False, True Xor True Or True, False Imp False Eqv False '> True False True True False True

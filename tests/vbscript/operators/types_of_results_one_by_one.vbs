' The type and the value of an operation a line.
'after ../expressions.inc
n7 = 7
X "Empty And 12" '> Long 0
X "12 And Empty" '> Long 0
X "Empty Or 12" '> Long 12
X "Empty Xor True" '> Long -1
X "Empty Eqv 0" '> Long -1
X "Empty Imp 5" '> Long -1
X "5 Imp Empty" '> Long -6
X "Not Empty" '> Long -1
X "Empty And Null" '> Long 0
X "Null And Empty" '> Long 0
X "Empty Or Null" '> Null
X "Empty Xor Null" '> Null
X "Empty Imp Null" '> Long -1
X "Null Imp Empty" '> Null
X "Empty And Empty" '> Long 0
X "CByte(3) And Empty" '> Long 0
X "Empty * 12" '> Integer 0
X "Empty + 12" '> Integer 12
X "Empty - 12" '> Integer -12
X "Empty \ 12" '> Integer 0
X "Empty Mod 12" '> Integer 0
X "Empty / 12" '> Double 0
X "Empty ^ 2" '> Double 0
X "-Empty" '> Integer 0
X "Empty + Empty" '> Integer 0
X "Empty & Empty" '> String |
X "Empty + ""a""" '> String a
X "Empty * CByte(2)" '> Integer 0
X "+""seven""" '> String seven
X "+Null" '> Null
X "+Empty" '> Empty
X "+True" '> Boolean True
X "+#1/2/2020#" '> Date 1/2/2020
X "++""x""" '> String x
X "-""x""" '> error 13
X "-""5""" '> Double -5
X "-True" '> Integer 1
X "-CByte(3)" '> Integer -3
X "-4 ^ 2" '> Double 16
X "3 * 4 ^ 2" '> Double 48
X "2 ^ 2 ^ 3" '> Double 64
X "2 ^ -1" '> Double 0.5
X "-2 ^ -2" '> Double 0.25
X "-n7 ^ 2" '> Double 49
X "2 - -3" '> Integer 5
X "Not 1 = 2" '> Boolean True
X "Not -1" '> Integer 0
X "CByte(15) Imp Null" '> Byte 240
X "CByte(255) Imp Null" '> Byte 0
X "CByte(0) Imp Null" '> Byte 255
X "Null Imp CByte(15)" '> Byte 15
X "Null Imp CByte(0)" '> Null
X "15 Imp Null" '> Null
X "True Imp Null" '> Null
X "False Imp Null" '> Boolean True
X "-1 Imp Null" '> Null
X "Null Or CByte(0)" '> Null
X "CByte(0) And Null" '> Byte 0
X "CByte(3) And Null" '> Null
X "CByte(255) Or Null" '> Byte 255
X "Round(2 > 1)" '> Boolean True
X "Round(True, 1)" '> Boolean True
X "Abs(True)" '> Integer 1
X "Int(True)" '> Integer -1
X "Fix(False)" '> Integer 0
X "Sgn(True)" '> Integer -1
X "&H2A&" '> Integer 42
X "&HFFFFFFF0&" '> Integer -16
X "&HFFF0&" '> Long 65520
X "&HFFF0" '> Integer -16
X "&O52&" '> Integer 42
X "&O177760" '> Integer -16
X "&O177760&" '> Long 65520
X "&O37777777760&" '> Integer -16
X "&H8000&" '> Long 32768
X "&H8000" '> Long -32768
X "&HFFFF8000&" '> Integer -32768
X "&HFFFF7FFF&" '> Long -32769
X "&H7FFF&" '> Integer 32767
X "&H10000" '> Long 65536
X "&52" '> Integer 42
X "&52&" '> Integer 42
X "-&H8000" '> Long 32768
X "TypeName(vbBlack)" '> String Long
X "TypeName(vbWhite)" '> String Long
X "TypeName(vbObjectError)" '> String Long
X "TypeName(vbMsgBoxHelpButton)" '> String Long
X "TypeName(vbMsgBoxRight)" '> String Long
X "TypeName(vbMsgBoxSetForeground)" '> String Long
X "TypeName(vbMsgBoxRtlReading)" '> String Long
X "TypeName(vbSystemModal)" '> String Integer
X "TypeName(vbShortTime)" '> String Integer
X "TypeName(vbTrue)" '> String Integer
X "TypeName(vbUseDefault)" '> String Integer
X "TypeName(vbOKOnly)" '> String Integer
X "TypeName(vbArray)" '> String Integer
X "TypeName(vbSunday)" '> String Integer
X "TypeName(AscB(""Z""))" '> String Byte
X "TypeName(Asc(""Z""))" '> String Integer
X "TypeName(AscW(""Z""))" '> String Integer
X "TypeName(Len(""Z""))" '> String Long
X "TypeName(InStr(""Z"",""Z""))" '> String Long
X "TypeName(UBound(Array()))" '> String Long
X "UBound(Array())" '> Long -1
X "TypeName(StrComp(""a"",""b""))" '> String Integer
X "TypeName(Year(Now))" '> String Integer
X "TypeName(Timer)" '> String Single
X "TypeName(Rnd)" '> String Single
X "TypeName(RGB(1,2,3))" '> String Long
X "TypeName(DateDiff(""d"",1,2))" '> String Long
X "TypeName(VarType(1))" '> String Integer
X "VarType(Array(1))" '> Integer 8204
X "TypeName(Array(1))" '> String Variant()

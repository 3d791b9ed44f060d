' A conversion a line, at the edges of its type.
'after ../expressions.inc
X "CBool(""#True#"")" '> Boolean True
X "CBool(""#fALSE#"")" '> Boolean False
X "CBool(""1.5"")" '> Boolean True
X "CBool(""0"")" '> Boolean False
X "CBool(""x"")" '> error 13
X "CBool("""")" '> error 13
X "CBool(Empty)" '> Boolean False
X "CLng(""#True#"")" '> error 13
X "CInt(""True"")" '> error 13
X "CDbl(""False"")" '> error 13
X "CByte(""True"")" '> error 13
X "CDate(""True"")" '> error 13
X "CLng(""1e3"")" '> Long 1000
X "CInt(""&H10"")" '> Integer 16
X "CInt(2.5)" '> Integer 2
X "CInt(3.5)" '> Integer 4
X "CInt(-2.5)" '> Integer -2
X "CInt(32767.5)" '> error 6
X "CByte(255.5)" '> error 6
X "CByte(-0.5)" '> Byte 0
X "CByte(-1)" '> error 6
X "CByte(True)" '> Byte 255
X "CLng(2147483647.5)" '> error 6
X "CInt("" 12 "")" '> Integer 12
X "CInt(""1,200"")" '> Integer 1200
X "CStr(True)" '> String True
X "CStr(1/3)" '> String 0.333333333333333
X "CStr(CSng(1/3))" '> String 0.3333333
X "CStr(1e15)" '> String 1E+15
X "CStr(123456789012345)" '> String 123456789012345
X "CStr(0.0001)" '> String 0.0001
X "CStr(-0.5)" '> String -0.5

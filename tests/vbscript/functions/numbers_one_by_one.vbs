' A function on numbers a line.
'after ../expressions.inc
X "Hex(-1)" '> String FFFF
X "Hex(-1&)" '> error 1002
X "Hex(CLng(-1))" '> String FFFFFFFF
X "Hex(255.5)" '> String 100
X "Hex(""255"")" '> String FF
X "Hex(Empty)" '> String 0
X "Hex(True)" '> String FFFF
X "Hex(3000000000)" '> error 6
X "Oct(8)" '> String 10
X "Oct(-1)" '> String 177777
X "Int(-1.5)" '> Double -2
X "Int(""-1.5"")" '> Double -2
X "Int(5)" '> Integer 5
X "Fix(-1.5)" '> Double -1
X "Round(0.5)" '> Double 0
X "Round(1.5)" '> Double 2
X "Round(-2.5)" '> Double -2
X "Round(1.005, 2)" '> Double 1
X "Round(5)" '> Integer 5
X "Round(""2.5"")" '> Double 2
X "Round(2.5, -1)" '> error 5
X "Sgn(-0.1)" '> Integer -1
X "Sqr(-1)" '> error 5
X "Log(0)" '> error 5
X "Log(-1)" '> error 5
X "Exp(710)" '> error 6
X "Exp(0)" '> Double 1
X "Atn(1) * 4" '> Double 3.14159265358979
X "Abs(""-5"")" '> Double 5
X "Abs(CByte(5))" '> Byte 5

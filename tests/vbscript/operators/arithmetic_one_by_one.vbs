' An operation on numbers a line.
'after ../expressions.inc
X "7 / 2" '> Double 3.5
X "7 \ 2.5" '> Long 3
X "7.5 \ 2" '> Long 4
X "7 Mod 2.5" '> Long 1
X "-7 Mod 3" '> Integer -1
X "7 Mod -3" '> Integer 1
X "5.5 Mod 3" '> Long 0
X "1 \ 0" '> error 11
X "1 \ 0.4" '> error 11
X "1 Mod 0.4" '> error 11
X "1 / 0" '> error 11
X "0 / 0" '> error 6
X "0 ^ 0" '> Double 1
X "0 ^ -1" '> error 5
X "(-8) ^ 2" '> Double 64
X "(-8) ^ 0.5" '> error 5
X "10 ^ 309" '> error 6
X "1e308 * 10" '> error 6
X "32767 + 1" '> Long 32768
X "32767 * 2" '> Long 65534
X "-32768 - 1" '> Long -32769
X "2147483647 + 1" '> Double 2147483648
X "CByte(255) + 1" '> Integer 256
X "CByte(255) + CByte(1)" '> Integer 256
X "CByte(1) - CByte(2)" '> Integer -1
X "CByte(200) * CByte(2)" '> Integer 400
X "True + True" '> Integer -2
X "True * 3" '> Integer -3
X "True & 1" '> String True1
X "1 & 2" '> String 12
X "1 + ""2""" '> Double 3
X """1"" + ""2""" '> String 12
X """1"" - ""2""" '> Double -1
X """a"" + 1" '> error 13
X "Null & ""a""" '> String a
X "Null + ""a""" '> Null
X "True And 5" '> Integer 5
X "1.5 And 3" '> Long 2
X """5"" And 3" '> Long 1
X """a"" And 3" '> error 13
X "5 And Null" '> Null
X "0 And Null" '> Integer 0
X "False And Null" '> Boolean False
X "True Or Null" '> Boolean True
X "True And Null" '> Null
X "3000000000 And 1" '> error 6
X "Not 3.5" '> Long -5
X "Not ""5""" '> Long -6
X "Not Null" '> Null
X "True Xor True" '> Boolean False
X "True Eqv False" '> Boolean False
X "True Imp False" '> Boolean False
X "CByte(5) And 3" '> Integer 1
X "CByte(5) And CByte(3)" '> Byte 1
X "Not CByte(5)" '> Byte 250
X "CByte(5) And True" '> Integer 5

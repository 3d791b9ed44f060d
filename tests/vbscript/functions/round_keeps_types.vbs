' Round gives the type that it gets, Abs, Int and Fix as well; halves go to the even digit.
WScript.Echo TypeName(Round(True)), Round(True), TypeName(Abs(True)), Abs(True), TypeName(Int(True)), TypeName(Fix(True)), TypeName(Sgn(True))
'> Boolean True Integer 1 Integer Integer Integer
WScript.Echo TypeName(Round(CByte(3))), TypeName(Round("3")), TypeName(Round(3)), TypeName(Round(100000)), TypeName(Round(CCur(2.5))), TypeName(Round(CSng(2.5)))
'> Byte Double Integer Long Currency Single
WScript.Echo Round(2.5), Round(3.5), Round(-2.5), Round(0.125, 2), Round(12345.678, 1), Round(-0.5), Round(2.675, 2), Round(1E15) '> 2 4 -2 0,12 12345,7 0 2,68 1E+15
WScript.Echo Int(2.7), Int(-2.7), Fix(2.7), Fix(-2.7), Int(-2), Abs(-3.5), Sgn(-0.1), Sgn(0), Sgn("5"), TypeName(Sgn(2.5)), TypeName(Int(CCur(2.5)))
'> 2 -3 2 -2 -2 3,5 -1 0 1 Integer Currency
WScript.Echo IsNull(Round(Null)), IsNull(Abs(Null)), IsNull(Int(Null)), IsNull(Fix(Null)) '> True True True True

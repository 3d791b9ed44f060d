' What Execute, Eval and GetRef take, and what later texts may declare.
'after ../statements.inc
Q "Sub PE : Execute ""Dim gap : gap = 6"" : r = gap : End Sub" & vbLf & "PE" '> ok Integer 6
Q "r = TypeName(gap)" '> ok Empty
Q "Execute 2.5" '> error 13
Q "Execute Null" '> error 13
Q "Execute Empty" '> error 13
Q "Execute True" '> error 13
Q "Execute p" '> error 438
Q "ExecuteGlobal 2.5" '> error 13
Q "ExecuteGlobal Nothing" '> error 91
Q "Execute Array(1)" '> error 13
Q "r = Eval(Null)" '> ok Null
Q "r = Eval(Empty)" '> ok Empty
Q "r = Eval(#1/2/2020#)" '> ok Date 1/2/2020
Q "r = Eval(5)" '> ok Integer 5
Q "r = Eval(Array(1))" '> ok Variant()
Q "Set r = Eval(o)" '> ok Clock
Q "r = Eval("""")" '> error 1002
Q "r = Eval(""1 +"")" '> error 1002
Q "r = Eval(""1 2"")" '> error 1025
Q "r = Eval(""n = 5"")" '> ok Boolean False
Q "Set r = GetRef(True)" '> error 13
Q "Set r = GetRef(5)" '> error 13
Q "Set r = GetRef(Null)" '> error 13
Q "Set r = GetRef("""")" '> error 5
Q "Set r = GetRef(""nope"")" '> error 5
Q "Set r = GetRef(""Len"")" '> error 5
Q "GetRef 5" '> ok
Q "Const rate = 3 : ExecuteGlobal ""Dim rate : rate = 8"" : r = rate" '> ok Integer 3
Q "r = rate" '> ok Integer 8
Q "ExecuteGlobal ""Dim box(1)"" : ExecuteGlobal ""Dim box(1)""" '> error 13
Q "ExecuteGlobal ""Dim box2"" : ExecuteGlobal ""Dim box2(1)"" : r = UBound(box2)" '> ok Long 1
Q "ExecuteGlobal ""Dim box3 : box3 = 4"" : ExecuteGlobal ""Dim box3"" : r = box3" '> ok Integer 4
Q "ExecuteGlobal ""Dim box4()"" : ExecuteGlobal ""Dim box4""" '> ok
Q "Dim cz : ExecuteGlobal ""Const cz = 1""" '> error 1041
Q "Const cy = 1 : Dim cy" '> error 1041
Q "Dim cx : Const cx = 1" '> error 1041
Q "Const cw = 1 : Const cw = 2" '> error 1041
Q "Dim cv : Dim cv" '> error 1041
Q "Dim cu, cu" '> error 1041
Q "Const ct = 1 : ct = 2" '> error 501
Q "Const cs = 1 : cs = 2" '> error 501

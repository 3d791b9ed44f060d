' Arrays, what is none, and the functions that want one.
'after ../statements.inc
Q "r = TypeName(aa) : Dim aa(3)" '> ok Empty
Q "Dim ab(3) : r = TypeName(ab)" '> ok Variant()
Q "Sub RD : Dim f(2) : ReDim f(""two"") : End Sub" & vbLf & "RD" '> error 10
Q "Sub RD2 : Dim f(2) : ReDim f(5) : End Sub" & vbLf & "RD2" '> error 10
Q "Sub RD3 : Dim f() : ReDim f(""two"") : End Sub" & vbLf & "RD3" '> error 13
Q "Sub RD4 : Dim f() : ReDim f(-2) : End Sub" & vbLf & "RD4" '> error 9
Q "Sub RD5 : Dim f() : ReDim f(Null) : End Sub" & vbLf & "RD5" '> error 94
Q "Sub RD6 : Dim f() : ReDim f(-1) : r = UBound(f) : End Sub" & vbLf & "RD6" '> ok Long -1
Q "Sub RD7 : Dim f() : ReDim f(""3"") : r = UBound(f) : End Sub" & vbLf & "RD7" '> ok Long 3
Q "Sub RD8 : Dim f() : ReDim f(2.5) : r = UBound(f) : End Sub" & vbLf & "RD8" '> ok Long 2
Q "Sub RD9 : Dim f() : ReDim f(1,1) : ReDim Preserve f(2,1) : End Sub" & vbLf & "RD9" '> error 9
Q "Sub RDa : Dim f() : ReDim f(1,1) : ReDim Preserve f(1,3) : r = UBound(f,2) : End Sub" & vbLf & "RDa" '> ok Long 3
Q "Sub RDb : Dim f() : ReDim f(1) : ReDim Preserve f(1,3) : End Sub" & vbLf & "RDb" '> error 9
Q "Sub RDc : Dim f : ReDim f(1) : r = UBound(f) : End Sub" & vbLf & "RDc" '> ok Long 1
Q "Sub RDd : Dim f : f = 5 : ReDim f(1) : r = UBound(f) : End Sub" & vbLf & "RDd" '> ok Long 1
Q "Sub RDe : Dim f : f = 5 : ReDim Preserve f(1) : r = UBound(f) : End Sub" & vbLf & "RDe" '> ok Long 1
Q "v = Array(0, Nothing) : v(1)(0) = 4" '> error 13
Q "v = Array(0, Nothing) : v(0)(0) = 4" '> error 13
Q "v = Array(0, ""x"") : v(1)(0) = 4" '> error 13
Q "v = Array(0, Empty) : v(1)(0) = 4" '> error 13
Q "v = Array(0, Nothing) : r = v(1)(0)" '> error 91
Q "v = Array(0, 5) : r = v(0)(0)" '> error 13
Q "v = Array(Array(1,2),3) : v(0)(1) = 9 : r = v(0)(1)" '> ok Integer 9
Q "v = 5 : v(0) = 1" '> error 13
Q "v = 5 : r = v(0)" '> error 13
Q "v = Empty : v(0) = 1" '> error 13
Q "v = ""abc"" : r = v(0)" '> error 13
Q "r = fx" '> ok Variant()
Q "fx = 1" '> error 13
Q "fx(0) = 1 : r = fx(0)" '> ok Integer 1
Q "r = fx(3)" '> error 9
Q "r = fx(-1)" '> error 9
Q "r = fx(""1"")" '> ok Empty
Q "r = fx(""x"")" '> error 13
Q "r = fx(Null)" '> error 94
Q "r = fx(1,1)" '> error 9
Q "r = dd(0)" '> error 9
Q "dd(0) = 1" '> error 9
Q "r = UBound(dd)" '> error 9
Q "r = LBound(dd)" '> error 9
Q "r = UBound(fx, 2)" '> error 9
Q "r = UBound(fx, 0)" '> error 9
Q "r = UBound(Null)" '> error 13
Q "r = UBound(Empty)" '> error 13
Q "r = LBound(5)" '> error 13
Q "r = UBound(""x"")" '> error 13
Q "r = UBound(Nothing)" '> error 91
Q "r = LBound(Nothing)" '> error 91
Q "r = UBound(p)" '> error 438
Q "r = UBound(d)" '> error 450
Q "r = UBound(New Trio2)" '> error 13
Q "r = UBound(New ArgDef)" '> error 450
Q "r = LBound(d)" '> error 450
Q "r = Join(Null)" '> error 94
Q "r = Join(p)" '> error 438
Q "r = Join(5)" '> error 13
Q "r = Join(""x"")" '> error 13
Q "r = Join(Empty)" '> error 13
Q "r = Join(Array(""a"", Null))" '> error 13
Q "r = Join(Array(""a"", Array(1)))" '> error 13
Q "r = Join(Array(1, True, Empty, 2.5), ""-"")" '> ok 1-True--2.5
Q "Dim t2(1,1)" & vbLf & "r = Join(t2)" '> error 13
Q "r = Join(dd)" '> ok |
Q "r = Join(Array(1,2), Null)" '> error 94
Q "r = Join(Array(""a"", p))" '> error 438
Q "r = Join(Array(""a"", New Trio2))" '> ok a 5
Q "r = Filter(Null, ""s"")" '> error 94
Q "r = Filter(Array(""a""), Null)" '> error 94
Q "r = Filter(""list"", ""s"")" '> error 13
Q "r = Filter(5, ""s"")" '> error 13
Q "r = UBound(Filter(Array(""a"",""b""), ""z""))" '> ok Long -1
Q "r = Join(Filter(Array(""Ab"",""b"",12), ""a"", True, 1))" '> ok Ab
Q "r = Join(Filter(Array(""Ab"",""b"",12), ""b"", False))" '> ok 12
Q "r = Split("""")(0)" '> error 9
Q "r = UBound(Split(""""))" '> ok Long -1
Q "r = UBound(Split(""a b c"", """"))" '> ok Long 0
Q "r = Join(Split(""a,b,c"", "","", 2), ""|"")" '> ok a|b,c
Q "r = Join(Split(""aXbxc"", ""x"", -1, 1), ""|"")" '> ok a|b|c
Q "Erase fx : r = fx(0)" '> ok Empty
Q "v = Array(1) : Erase v : r = UBound(v)" '> error 9
Q "v = 5 : Erase v" '> error 13
Q "Erase v2x" '> error 13

' Indexes are rounded; what is no index, no bound or too much, is an error.
On Error Resume Next
Dim a(2), b()
a = Array(1): WScript.Echo Err.Number: Err.Clear '> 13
b = Array(1, 2): WScript.Echo Err.Number, UBound(b) '> 0 1
Erase a: WScript.Echo IsEmpty(a(0)), UBound(a): Erase b '> True 2
WScript.Echo UBound(b): WScript.Echo Err.Number: Err.Clear '> 9
ReDim b(2, 2): WScript.Echo UBound(b, 2) '> 2
WScript.Echo UBound(b, 3): WScript.Echo Err.Number: Err.Clear '> 9
WScript.Echo UBound(b, 0): WScript.Echo Err.Number: Err.Clear '> 9
WScript.Echo UBound(b, Null): WScript.Echo Err.Number: Err.Clear '> 94
WScript.Echo LBound(a, "1") '> 0
WScript.Echo LBound(a, "x"): WScript.Echo Err.Number: Err.Clear '> 13
WScript.Echo UBound(Array()), LBound(Array()) '> -1 0
c = a: c(0) = 5: WScript.Echo IsEmpty(a(0)), c(0) '> True 5
c = Array(Array(1, 2), Array(3)): c(0)(1) = 9: WScript.Echo c(0)(1), c(1)(0) '> 9 3
WScript.Echo IsArray(a), IsArray(a(0)), TypeName(a), VarType(a), VarType(Array("a")) '> True False Variant() 8204 8204
x = a(True): WScript.Echo Err.Number: Err.Clear '> 9
a(1.5) = "r": WScript.Echo a(2): a(0.5) = "z": WScript.Echo a(0): a("2") = "s": WScript.Echo a(2): a(2.5) = "t": WScript.Echo a(2)
'> r
'> z
'> s
'> t
a(Empty) = "e": WScript.Echo a(0) '> e
a(Null) = 1: WScript.Echo Err.Number: Err.Clear '> 94
a("x") = 1: WScript.Echo Err.Number: Err.Clear '> 13
a() = 1: WScript.Echo Err.Number: Err.Clear '> 9
x = a(): WScript.Echo Err.Number: Err.Clear '> 9
x = a(1, 1): WScript.Echo Err.Number: Err.Clear '> 9
x = b(1): WScript.Echo Err.Number: Err.Clear '> 9
a(99999999999) = 1: WScript.Echo Err.Number: Err.Clear '> 6
ReDim a(5): WScript.Echo Err.Number: Err.Clear '> 10
ReDim Preserve b(2, 99): WScript.Echo UBound(b, 2) '> 99
ReDim q(2): WScript.Echo UBound(q): ReDim q(1, 1): WScript.Echo UBound(q, 2)
'> 2
'> 1
z = 5: ReDim z(1): WScript.Echo UBound(z), Err.Number '> 1 0
Set o = Nothing: ReDim o(1): WScript.Echo UBound(o), Err.Number '> 1 0
Dim m(): ReDim m(1, 1): m(0, 0) = 1: m(0, 1) = 2: m(1, 0) = 3: m(1, 1) = 4: ReDim Preserve m(1, 3)
m(1, 3) = 7: s = "": For Each x In m: s = s & "," & x: Next: WScript.Echo s '> ,1,3,2,4,,,,7
ReDim Preserve m(2, 3): WScript.Echo Err.Number: Err.Clear '> 9
ReDim Preserve m(3): WScript.Echo Err.Number: Err.Clear '> 9
ReDim Preserve m(1, -2): WScript.Echo Err.Number: Err.Clear '> 9

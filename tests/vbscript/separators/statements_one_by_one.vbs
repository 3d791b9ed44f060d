' How a text is cut into statements, one text a line.
'after ../statements.inc
Q "x = Call_" '> ok
Q "CDbl 9" '> error 458
Q "Call CDbl(9)" '> error 458
Q "Call CDbl(""nine"")" '> error 13
Q "CInt 9" '> error 458
Q "CLng(9)" '> error 458
Q "CByte 300" '> error 6
Q "CByte 3" '> error 458
Q "CSng ""x""" '> error 13
Q "CSng 1" '> error 458
Q "CCur 1" '> error 458
Q "CDate 1" '> error 458
Q "CDate ""x""" '> error 13
Q "CInt Null" '> error 94
Q "CBool 1" '> ok
Q "CStr 1" '> ok
Q "Len ""a""" '> ok
Q "r = CDbl(9)" '> ok Double 9
Q "r = CSng(o)" '> ok Single 42
Q "r = CBool(o)" '> ok Boolean True
Q "r = CStr(o)" '> ok 42
Q "r = CDate(o)" '> ok Date 2/10/1900
Q "r = CLng(p)" '> error 438
Q "r = o + 1" '> ok Integer 43
Q "r = o & ""x""" '> ok 42x
Q "r = -o" '> ok Integer -42
Q "r = Not o" '> ok Integer -43
Q "r = (o = 42)" '> ok Boolean True
Q "r = p + 1" '> error 438
Q "r = o" '> ok Integer 42
Q "r = p" '> error 438
Q "r = +o" '> ok Integer 42
Q "Set r = +o" '> ok Clock
Q "r = (+o Is o)" '> ok Boolean True
Q "If 1 > 2 Then" & vbLf & "Sub Ring : r = 5 : End Sub" & vbLf & "End If" & vbLf & "Ring" '> ok Integer 5
Q "Sub Ring2() r = 6 End Sub" & vbLf & "Ring2" '> ok Integer 6
Q "Function Fu() Fu = 6 End Function" & vbLf & "r = Fu" '> ok Integer 6
Q "Function Total() As Long" & vbLf & "End Function" '> error 1025
Q "Dim q As Long" '> error 1025
Q "Sub S(a As Long)" & vbLf & "End Sub" '> error 1006
Q "Const k1 As Long = 1" '> error 1011
Q "If True Then :" & vbLf & "r = 1" '> ok Integer 1
Q "If False Then :" & vbLf & "r = 1" '> ok Integer 1
Q "If False Then a = 1 Else r = 2 End If" '> ok Integer 2
Q "If True Then r = 1 Else r = 2 End If" '> ok Integer 1
Q "If True Then r = 1 Else r = 2" '> ok Integer 1
Q "If True Then r = 1 End If" '> ok Integer 1
Q "n = 0 : Call (New Clock).Tick : r = n" '> ok Integer 1
Q "n = 0 : Call (New Clock).Tick() : r = n" '> ok Integer 1
Q "Call (New Clock).Tock(3)" '> ok
Q "r = (New Clock).Tock(3)" '> ok Integer 6
Q "Sub Fill(a) : a = 7 : End Sub" & vbLf & "v = 1 : Call ((Fill)) (v) : r = v" '> ok Integer 7
Q "v = 1 : Call ((Fill)) ((v)) : r = v" '> ok Integer 1
Q "v = 1 : Call Fill(v) : r = v" '> ok Integer 7
Q "v = 1 : Fill (v) : r = v" '> ok Integer 1
Q "v = 1 : Fill v : r = v" '> ok Integer 7
Q "v = 1 : Call Fill((v)) : r = v" '> ok Integer 1
Q "d.RemoveAll : d.Add ""k"", p : d (""k"").v = 4 : r = d(""k"").v" '> ok Integer 4
Q "r = d (""k"").v" '> ok Integer 4
Q "r = Show (1) + 2" '> error 13
Q "Sub Show(x) : r = x : End Sub" & vbLf & "Show (1) + 2" '> ok Integer 3
Q "Show (1) & ""a""" '> ok 1a
Q "Show (1), 2" '> error 450
Q "v = ." '> error 1010
Q "o. " '> error 1010
Q "obj. 5" '> error 1010
Q "With o : r = .size : End With" '> ok Integer 9
Q "With o : . size = 1 : End With" '> ok
Q "r = o . size" '> ok Integer 1
Q ".size = 1" '> error 505
Q "r = .size" '> error 505
Q "Show.25" '> ok Double 0.25
Q "r = Eval(""&38"")" '> error 1002
Q "r = Eval(""&O8"")" '> error 1002
Q "r = Eval(""&H"")" '> error 1002
Q "r = Eval(""&HG"")" '> error 1002
Q "Me.n = 77 : r = n" '> ok Integer 77
Q "r = Me.n" '> ok Integer 77
Q "Sub MeSub : Me.n = 78 : End Sub" & vbLf & "MeSub : r = n" '> ok Integer 78
Q "Me.Show 3" '> ok Integer 3
Q "r = TypeName(Me)" '> ok Object
Q "Const side = 2 * 3" '> error 1025
Q "Const side2 = -3 : r = side2" '> ok Integer -3
Q "Const side3 = +3 : r = side3" '> ok Integer 3
Q "Const side4 = ""a"", side5 = #1/2/2020# : r = side5" '> ok Date 1/2/2020
Q "Const side7 = vbCrLf" '> error 1045
Q "Const side8 = Null : r = side8" '> ok Null
Q "Const s10 = &HFF& : r = s10" '> ok Integer 255

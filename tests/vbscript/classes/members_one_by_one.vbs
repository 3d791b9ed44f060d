' What a member answers to each way of using it.
'after ../statements.inc
Q "r = o.size(2)" '> error 438
Q "o.size(2) = 1" '> error 438
Q "r = o.size(1, 1)" '> error 438
Q "Set o.size(1) = p" '> error 438
Q "r = o.size()" '> error 5
Q "o.size() = 3 : r = o.size" '> ok Integer 3
Q "r = o.arr()" '> error 5
Q "r = o.arr(1)" '> ok Empty
Q "o.arr(1) = 4 : r = o.arr(1)" '> ok Integer 4
Q "r = o.arr(7)" '> error 9
Q "o.arr(7) = 1" '> error 9
Q "r = o.arr(1, 1)" '> error 9
Q "Set o.owner = p" '> error 438
Q "o.owner = p : r = n" '> ok Plain
Q "o.so = 1" '> error 438
Q "o.ro = 1" '> error 438
Q "r = o.wo" '> error 450
Q "o.wo = 3 : r = n" '> ok Integer 3
Q "o.Priv" '> error 438
Q "r = o.hidden" '> error 438
Q "o.hidden = 1" '> error 438
Q "r = o.idx(3)" '> ok Integer 30
Q "o.idx(3) = 4 : r = n" '> ok 3/4
Q "r = o.idx" '> error 450
Q "o.idx = 4" '> error 450
Q "o.Tick 1" '> error 450
Q "r = o.Tock" '> error 450
Q "o.Nope" '> error 438
Q "o.Nope = 1" '> error 438
Q "Set t = Nothing : t.Ring" '> error 424
Q "t.pitch = 2" '> error 424
Q "Set t.pitch = o" '> error 424
Q "r = t.pitch" '> error 424
Q "r = t.pitch(1)" '> error 424
Q "r = Nothing" '> error 91
Q "r = ""x"" & Nothing" '> error 91
Q "r = CLng(t)" '> error 91
Q "r = 1 + t" '> error 91
Q "r = -t" '> error 91
Q "r = (t = 1)" '> error 91
Q "r = Len(t)" '> error 91
Q "If t Then r = 1" '> error 91
Q "r = t(1)" '> error 91
Q "t(1) = 1" '> error 91
Q "t" '> error 91
Q "r = n7.x" '> error 424
Q "n = 5 : n.x" '> error 424
Q "n.x = 1" '> error 424
Q "n = ""abc"" : r = n.x" '> error 424
Q "n = Empty : n.x" '> error 424
Q "n = Null : n.x" '> error 424
Q "n = Array(1) : n.x" '> error 424
Q "Set r = 5" '> error 424
Q "Set r = Nothing" '> ok Nothing
Q "Set r = Empty" '> error 424
Q "Set r = Null" '> error 424

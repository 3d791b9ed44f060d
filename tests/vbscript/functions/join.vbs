WScript.Echo Join(Array("a", "b", "c")) '> a b c
WScript.Echo Join(Array(1, 2.5, True), "-") '> 1-2,5-True
WScript.Echo Join(Array("a", "b"), "") '> ab
WScript.Echo Len(Join(Array(), "-")) '> 0

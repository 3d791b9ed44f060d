' The error of a statement a line.
'after ../statements.inc
Q "Err.Raise 0" '> error 5
Q "Err.Raise 70000" '> error 5
Q "Err.Raise 65536" '> error 5
Q "Err.Raise 65535" '> error 65535
Q "Err.Raise -70" '> error -70
Q "Err.Raise 1e10" '> error 6
Q "Err.Raise ""x""" '> error 13
Q "Err.Raise" '> error 450
Q "Err.Raise vbObjectError + 1" '> error -2147221503
Q "Err.Raise Null" '> error 94
Q "Err.Raise 5.5" '> error 6
Q "With 5 : End With" '> error 424
Q "With ""x"" : End With" '> error 424
Q "With Empty : End With" '> error 424
Q "With Null : End With" '> error 424
Q "With Array(1) : End With" '> error 424
Q "With Nothing : End With" '> ok
Q "With Nothing : .x = 1 : End With" '> error 424
Q "v = 9 : For v = 1 To 5 \ 0 : Next" '> error 11
Q "On Error Resume Next : v = 9 : For v = 1 To 5 \ 0 : Next : r = v & "","" & Err.Number" '> error 92 9,92
Q "On Error Resume Next : v = 9 : For v = 1 \ 0 To 5 : Next : r = v & "","" & Err.Number" '> error 92 9,92
Q "On Error Resume Next : v = 9 : For v = 1 To 5 Step 1 \ 0 : Next : r = v & "","" & Err.Number" '> error 92 9,92
Q "On Error Resume Next : v = 9 : For v = 1 To ""x"" : k2 = k2 + 1 : Next : r = v & "","" & Err.Number & "","" & k2" '> error 92 9,92,1
Q "For v = 1 To Null : Next" '> error 94
Q "For v = ""x"" To 3 : Next" '> error 13
Q "On Error Resume Next : k2 = 0 : For Each v In 3.5 : k2 = k2 + 1 : Next : r = Err.Number & "","" & k2" '> error 451 451,1
Q "For Each v In 3.5 : Next" '> error 451
Q "For Each v In ""abc"" : Next" '> error 451
Q "For Each v In Null : Next" '> error 451
Q "For Each v In Nothing : Next" '> error 91
Q "For Each v In p : Next" '> error 451
Q "For Each v In dd : Next" '> ok

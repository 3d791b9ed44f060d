On Error Resume Next
r = 5
r = Randomize(4) : WScript.Echo Err.Number, r : Err.Clear '> 13 5
r = Randomize : WScript.Echo Err.Number, r : Err.Clear '> 13 5
r = 1 + Randomize(4) : WScript.Echo Err.Number, r : Err.Clear '> 13 5
WScript.Echo Randomize(4) : WScript.Echo Err.Number : Err.Clear '> 13
If IsEmpty(Randomize(1)) Then WScript.Echo "entra" '> entra
Err.Clear
Randomize : Randomize 4 : Call Randomize(5) : Randomize (6)
WScript.Echo Err.Number '> 0
Randomize "x" : WScript.Echo Err.Number : Err.Clear '> 13
Randomize Null : WScript.Echo Err.Number : Err.Clear '> 94

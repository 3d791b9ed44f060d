' The sequence of a fresh engine.
WScript.Echo Rnd '> 0,7055475
WScript.Echo Rnd() '> 0,533424
WScript.Echo Rnd(1) '> 0,5795186
WScript.Echo Rnd, Rnd '> 0,2895625 0,301948
WScript.Echo TypeName(Rnd) '> Single

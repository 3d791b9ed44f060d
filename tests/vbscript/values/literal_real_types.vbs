WScript.Echo TypeName(1.0), TypeName(1E2), TypeName(.5), TypeName(1.) '> Double Double Double Double
WScript.Echo 1E2, 1.5E-1, .5, 2.5e+1 '> 100 0,15 0,5 25

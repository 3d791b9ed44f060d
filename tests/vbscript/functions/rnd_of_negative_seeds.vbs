WScript.Echo Rnd(-1) '> 0,224007
WScript.Echo Rnd(-1) '> 0,224007
WScript.Echo Rnd(-5) = Rnd(-5) '> True

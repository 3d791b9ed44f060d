a = Rnd
WScript.Echo Rnd(0) = a, Rnd(0) = a '> True True
WScript.Echo Rnd = a '> False

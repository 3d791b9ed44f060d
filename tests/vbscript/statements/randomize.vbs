' The same negative Rnd before the same start value gives the same numbers again.
Rnd -1
Randomize 42
a = Rnd : b = Rnd
Rnd -1
Randomize 42
WScript.Echo Rnd = a, Rnd = b '> True True

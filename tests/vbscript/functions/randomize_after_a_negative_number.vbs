' Rnd(-1) and then Randomize with a number always begin the same sequence.
Rnd -1
Randomize 42
a = Rnd
Rnd -1
Randomize 42
WScript.Echo a = Rnd '> True
Rnd -1
Randomize 43
WScript.Echo a = Rnd '> False

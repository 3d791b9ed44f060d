Rnd -1
Randomize 1
a = Rnd
Rnd -1
Randomize 2
WScript.Echo Rnd = a '> False

Set d = CreateObject("Scripting.Dictionary")
d.Add "k", 1
d.Add "k", 2 '! 457

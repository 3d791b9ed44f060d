Set d = CreateObject("Scripting.Dictionary")
d.Add "a", 1
d.Add "a", 2 '! 457

Set d = CreateObject("Scripting.Dictionary")
d.CompareMode = -1 '! 5

Set d = CreateObject("Scripting.Dictionary")
d.Add("a", 1) '! 1044

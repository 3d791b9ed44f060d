Set d = CreateObject("Scripting.Dictionary")
d.Add "a", 1
d.Add "b", 2
d.Key("a") = "b" '! 457

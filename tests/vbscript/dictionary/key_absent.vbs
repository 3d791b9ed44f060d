Set d = CreateObject("Scripting.Dictionary")
d.Key("a") = "b" '! 32811

Set d = CreateObject("Scripting.Dictionary")
d.Remove "a" '! 32811

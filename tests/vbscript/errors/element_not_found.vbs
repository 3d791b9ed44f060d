Set d = CreateObject("Scripting.Dictionary")
d.Remove "k" '! 32811

Set d = CreateObject("Scripting.Dictionary")
d("a") = 1
x = d.Key("a") '! 450

Set d = CreateObject("Scripting.Dictionary")
d.NoExiste '! 438

Set d = CreateObject("Scripting.Dictionary")
d.Add "a", 1
d.Key("a") = "z"
WScript.Echo d.Exists("a"), d("z") '> False 1

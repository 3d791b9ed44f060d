On Error Resume Next
Set d = CreateObject("Scripting.Dictionary")
d.Add "a", 1
d.Key("a", "b") = "c" : WScript.Echo Err.Number : Err.Clear '> 450
x = d.Key("a") : WScript.Echo Err.Number : Err.Clear '> 450
d.Key("z") = "c" : WScript.Echo Err.Number : Err.Clear '> 32811
d.Add "b", 2
d.Key("a") = "b" : WScript.Echo Err.Number : Err.Clear '> 457
d.Add "a", 2 : WScript.Echo Err.Number : Err.Clear '> 457
d.Remove "z" : WScript.Echo Err.Number : Err.Clear '> 32811
d.Remove : WScript.Echo Err.Number : Err.Clear '> 450
d.Add "z" : WScript.Echo Err.Number : Err.Clear '> 450
d.CompareMode = 1 : WScript.Echo Err.Number : Err.Clear '> 5
d.Count = 1 : WScript.Echo Err.Number : Err.Clear '> 438
x = d.Items(2) : WScript.Echo Err.Number : Err.Clear '> 9
d.Item = 5 : WScript.Echo Err.Number : Err.Clear '> 450
d() = 5 : WScript.Echo Err.Number : Err.Clear '> 450
WScript.Echo d.Keys(1), d.Items(1), d.Count '> b 2 2
Set e = CreateObject("Scripting.Dictionary")
e.CompareMode = -1 : WScript.Echo Err.Number : Err.Clear '> 5
e.CompareMode = 2 : WScript.Echo Err.Number, e.CompareMode : Err.Clear '> 0 2
e.CompareMode = 0 : WScript.Echo Err.Number, e.CompareMode : Err.Clear '> 0 0

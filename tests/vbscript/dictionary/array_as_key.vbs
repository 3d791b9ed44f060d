Set d = CreateObject("Scripting.Dictionary")
On Error Resume Next
d.Add Array(1), 1
WScript.Echo Err.Number <> 0, d.Count '> True 0

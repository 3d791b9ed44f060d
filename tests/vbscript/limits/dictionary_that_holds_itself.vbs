Set d = CreateObject("Scripting.Dictionary")
d.Add "yo", d
WScript.Echo d("yo")("yo").Count '> 1
Set d = Nothing

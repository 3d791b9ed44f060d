Set d = CreateObject("Scripting.Dictionary")
Set d("yo") = d
WScript.Echo d("yo")("yo").Count '> 1

Set d = CreateObject("Scripting.Dictionary")
Set d("dentro") = CreateObject("Scripting.Dictionary")
d("dentro").Add "k", 5
WScript.Echo d("dentro")("k"), d("dentro").Count '> 5 1

Dim a(1)
Set a(0) = CreateObject("Scripting.Dictionary")
a(0).Add "k", 1
a(0)("k") = 5
WScript.Echo a(0)("k"), a(0).Count '> 5 1

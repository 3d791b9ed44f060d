Dim a(1)
Set a(0) = CreateObject("Scripting.Dictionary")
a(0).Add "k", "v"
Set a(1) = a(0)
WScript.Echo a(1)("k"), a(0) Is a(1) '> v True

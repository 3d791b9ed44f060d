i = 0
a = Array(0, 0)
a(i) = F()
WScript.Echo a(0) & a(1) '> 70
i = 0
Dim b(1, 1)
b(i, i) = F()
WScript.Echo b(0, 0) & b(1, 1) & "." '> 7.
i = 0
c = Array(Array(0, 0), 3)
c(0)(i) = F()
WScript.Echo c(0)(0) & c(0)(1) '> 70
Set d = CreateObject("Scripting.Dictionary")
i = 0
d.Item(i) = F()
WScript.Echo d.Exists(0), d.Exists(1) '> True False
i = 0
d(i) = F()
WScript.Echo d.Count '> 1
Function F
  i = 1
  F = 7
End Function

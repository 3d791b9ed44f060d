' What lies beside the argument from statements before is no key that is asked for.
Dim d, i, x
Set d = CreateObject("Scripting.Dictionary")
d.Add 7, "seven"
For i = 1 To 3
  x = Array("z", 7, 7)
  x = d.Exists("absent") : WScript.Echo x '> False
  x = Array(7, "z", "z")
  x = d.Exists(7) : WScript.Echo x '> True
Next
'> False
'> True
'> False
'> True
Sub Local
  Dim found, n
  For n = 1 To 3
    found = Max3(1, 7, 7)
    found = d.Exists(n * 10)
    WScript.Echo found, d.Exists(n + 100), d.Exists(n - n + 7) '> False False True
  Next
End Sub
'> False False True
'> False False True
Function Max3(a, b, c)
  Max3 = c
End Function
Local

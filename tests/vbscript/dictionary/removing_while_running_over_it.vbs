' For Each goes over the keys that there were when it began.
Set d = CreateObject("Scripting.Dictionary")
For i = 1 To 5
  d(i) = i
Next
For Each k In d
  d.Remove k
  d("x" & k) = 0
Next
WScript.Echo Join(d.Keys) '> x1 x2 x3 x4 x5

a = Array()
For i = 1 To 2000
  a = Array(a)
Next
a = Empty
WScript.Echo "fin" '> fin

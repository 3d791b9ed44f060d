' A chain of arrays within arrays, longer than any stack is deep.
a = Array()
For i = 1 To 300000
  a = Array(a)
Next
a = Empty
WScript.Echo "fin" '> fin

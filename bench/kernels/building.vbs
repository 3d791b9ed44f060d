Function Build(n)
  Dim s, i
  s = ""
  For i = 1 To n
    s = s & "valor " & i & ";"
  Next
  Build = s
End Function
Dim round, total
For round = 1 To 20
  total = total + Len(Build(50000))
Next
WScript.Echo total

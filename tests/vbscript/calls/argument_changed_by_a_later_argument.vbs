' A variable that goes by reference is read in the procedure, and so as the later arguments have left it.
Dim seen
Sub Note(a, b)
  seen = a
End Sub
Function Twice(a, b)
  Twice = a & a
End Function
Sub First(a, b, c)
  seen = b & "/" & a
End Sub
Function Five(u)
  u = 5
  Five = 0
End Function
Class Changer
  Public Function Six(u)
    u = 6
    Six = 0
  End Function
End Class

Sub Work
  Dim t, k
  Set k = New Changer
  t = 1 : Note t, Five(t) : WScript.Echo seen '> 5
  t = 1 : Note t, "x" & Five(t) : WScript.Echo seen '> 5
  t = 1 : Note t, Array(2, -Five(t)) : WScript.Echo seen '> 5
  t = 1 : Note t, k.Six(t) : WScript.Echo seen '> 6
  t = 1 : WScript.Echo Twice(t, Five(t)), t '> 55 5
  t = 1 : First 2, t, (Five(t)) : WScript.Echo seen '> 5/2
  t = 1 : First t, Five(t), t : WScript.Echo seen '> 0/5
  t = 1 : Note (t), Five(t) : WScript.Echo seen '> 1
  t = 1 : Note t + 0, Five(t) : WScript.Echo seen '> 1
  t = 1 : Note Five(t), t : WScript.Echo seen, t '> 0 5
  t = 1 : Note t, Five((t)) : WScript.Echo seen, t '> 1 1

  Dim list
  list = Array(1, 2) : NoteFirst list, Five(list(0)) : WScript.Echo seen, list(0) '> 5 5
  list = Array(1, 2) : NoteFirst list, Five((list(0))) : WScript.Echo seen, list(0) '> 1 1
End Sub
Sub NoteFirst(a, b)
  seen = a(0)
End Sub
Work

Dim g
g = 1 : Note g, Five(g) : WScript.Echo seen '> 5

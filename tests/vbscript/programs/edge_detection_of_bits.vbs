mw.leer 1, 60
Dim last, rises, falls, v
For Each v In Array(0, 1, 3, 2, 2, 0, 5)
  mw.escribir 1, 40, v
  now_ = mw.leer(1, 40)
  changed = now_ Xor last
  For b = 0 To 2
    If changed And 2 ^ b Then If now_ And 2 ^ b Then rises = rises + 1 Else falls = falls + 1
  Next
  last = now_
Next
WScript.Echo rises, falls '> 4 2

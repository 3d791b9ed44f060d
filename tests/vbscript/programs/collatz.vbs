Function Pasos(ByVal n)
  Do Until n = 1
    If n Mod 2 = 0 Then n = n \ 2 Else n = 3 * n + 1
    Pasos = Pasos + 1
  Loop
End Function
For n = 1 To 999
  p = Pasos(n)
  If p > mejor Then mejor = p : donde = n
Next
WScript.Echo donde, mejor, Pasos(27) '> 871 178 111

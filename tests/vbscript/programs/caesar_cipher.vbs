Function Gira(t, k)
  For i = 1 To Len(t)
    c = Asc(Mid(t, i, 1))
    Select Case True
      Case c >= 65 And c <= 90
        c = (c - 65 + k + 26) Mod 26 + 65
      Case c >= 97 And c <= 122
        c = (c - 97 + k + 26) Mod 26 + 97
    End Select
    Gira = Gira & Chr(c)
  Next
End Function
WScript.Echo Gira("Hola Mundo xyz", 3) '> Krod Pxqgr abc
WScript.Echo Gira(Gira("Hola Mundo xyz", 3), -3) '> Hola Mundo xyz

Function Comprime(t)
  Dim i, n
  i = 1
  Do While i <= Len(t)
    n = 1
    Do While Mid(t, i + n, 1) = Mid(t, i, 1) And i + n <= Len(t)
      n = n + 1
    Loop
    Comprime = Comprime & Mid(t, i, 1) & n
    i = i + n
  Loop
End Function
Function Expande(t)
  Dim r, m
  Set r = New RegExp
  r.Global = True
  r.Pattern = "(\D)(\d+)"
  For Each m In r.Execute(t)
    Expande = Expande & String(CLng(m.SubMatches(1)), m.SubMatches(0))
  Next
End Function
WScript.Echo Comprime("aaabbcdddd") '> a3b2c1d4
WScript.Echo Expande(Comprime("aaabbcdddd")) '> aaabbcdddd

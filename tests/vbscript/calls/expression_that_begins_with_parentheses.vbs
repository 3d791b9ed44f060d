Sub S(n)
  WScript.Echo n
End Sub
S(10)+5 '> 15
S (2)*8 '> 16
S (1) & "a" '> 1a

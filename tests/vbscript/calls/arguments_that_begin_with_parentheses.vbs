Sub S(a, b)
  WScript.Echo a, b
End Sub
S (2)*8, 7 '> 16 7
S (2), (3) '> 2 3
S(1)+1, 2 '> 2 2

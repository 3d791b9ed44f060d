Sub P(q)
  Dim n
  n = 4
  Execute "Dim n"
  WScript.Echo n '> 4
  Execute "Dim q : Dim n"
  WScript.Echo n, q '> 4 7
End Sub
P 7

Sub NpS(n)
  WScript.Echo n
End Sub
NpS.5 '> 0,5
NpS .25 '> 0,25

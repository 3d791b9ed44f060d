mw.leer 1, 60
Dim window(3), n, i
For Each v In Array(100, 120, 140, 160, 180)
  mw.escribir 1, 50, v
  window(n Mod 4) = mw.leer(1, 50) : n = n + 1
Next
For i = 0 To 3 : total = total + window(i) : Next
mw.escribir 1, 51, total / 4
WScript.Echo mw.leer(1, 51) '> 150

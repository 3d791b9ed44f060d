mw.leer 1, 60
mw.escribir 1, 30, 65533
For i = 1 To 5
  mw.escribir 1, 30, (mw.leer(1, 30) + 1) Mod 65536
Next
WScript.Echo mw.leer(1, 30) '> 2

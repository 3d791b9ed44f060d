Sub Dobla(n)
  n = n * 2
End Sub
Dim a(2)
a(1) = 4
Dobla a(1)
Call Dobla(a(1))
WScript.Echo a(1) '> 16

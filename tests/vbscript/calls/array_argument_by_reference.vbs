Sub Pon(a)
  a(0) = "cambiado"
End Sub
Sub PonCopia(ByVal a)
  a(0) = "copia"
End Sub
x = Array("original")
PonCopia x
WScript.Echo x(0) '> original
Pon x
WScript.Echo x(0) '> cambiado

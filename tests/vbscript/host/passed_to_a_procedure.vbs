Sub Sube(tabla, direccion)
  tabla.escribir 1, direccion, tabla.leer(1, direccion) + 1
End Sub
x = mw.leer(1, 0)
Sube mw, 4
Sube mw, 4
WScript.Echo mw.leer(1, 4), IsObject(mw) '> 2 True

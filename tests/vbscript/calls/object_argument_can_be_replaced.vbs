Sub Cambia(ByRef a, ByVal b)
  Set a = Nothing
  Set b = Nothing
End Sub
Set x = New RegExp
Set y = New RegExp
Cambia x, y
WScript.Echo x Is Nothing, y Is Nothing '> True False

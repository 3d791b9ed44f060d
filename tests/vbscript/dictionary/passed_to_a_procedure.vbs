Sub Pon(d)
  d("k") = "puesto"
End Sub
Set x = CreateObject("Scripting.Dictionary")
Pon x
WScript.Echo x("k") '> puesto

' Class_Terminate may use the dictionary that lets go of the object.
Class T
  Public d
  Private Sub Class_Terminate
    d("fin") = d("fin") + 1
  End Sub
End Class
Sub Pon(d, clave)
  Dim x
  Set x = New T
  Set x.d = d
  Set d(clave) = x
End Sub
Set d = CreateObject("Scripting.Dictionary")
Pon d, "a"
d.Remove "a"
Pon d, "a"
d("a") = 5
Pon d, "b"
Set d("b") = Nothing
WScript.Echo d("fin"), Join(d.Keys) '> 3 fin a b
Pon d, "c"
d.RemoveAll
WScript.Echo d("fin"), d.Count '> 1 1

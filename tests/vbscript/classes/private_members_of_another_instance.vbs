' Private is private to the object, not to the class.
Class K
  Private v
  Public Sub Copia(otro)
    v = otro.v
  End Sub
End Class
Set a = New K
Set b = New K
On Error Resume Next
a.Copia b
WScript.Echo Err.Number '> 438

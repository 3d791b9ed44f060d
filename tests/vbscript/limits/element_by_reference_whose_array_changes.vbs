' An element goes by reference while the callee makes its array another one.
Dim a, b()
Sub achica(e)
  e = "escrita"
  ReDim b(0)
End Sub
Sub borra(e)
  e = "escrita"
  a = Empty
End Sub
Sub agranda(e)
  ReDim Preserve b(5000)
  e = "escrita"
End Sub
ReDim b(3)
agranda b(2)
WScript.Echo b(2), UBound(b)  '> escrita 5000
a = Array(1, 2)
borra a(1)
WScript.Echo IsEmpty(a)       '> True
ReDim b(3)
On Error Resume Next
achica b(2)
WScript.Echo Err.Number, UBound(b)  '> 9 0
On Error GoTo 0

Class Fin
  Private Sub Class_Terminate
    WScript.Echo "termina"
    ReDim b(1)
  End Sub
End Class
Sub suelta(e)
  e = 1
End Sub
ReDim b(3)
Set b(3) = New Fin
suelta b(3)
'> termina
WScript.Echo UBound(b)  '> 1

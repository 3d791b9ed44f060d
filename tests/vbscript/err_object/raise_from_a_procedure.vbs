Sub Comprueba(n)
  If n < 0 Then Err.Raise 5001, "Comprueba", "negativo: " & n
End Sub
On Error Resume Next
Comprueba 1
WScript.Echo Err.Number '> 0
Comprueba -1
WScript.Echo Err.Number, Err.Description '> 5001 negativo: -1

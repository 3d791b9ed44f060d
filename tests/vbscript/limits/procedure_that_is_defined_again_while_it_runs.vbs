' The code that runs stays until it has ended, however often its name is given to other code.
Dim vueltas, f
Sub cambia(n)
  Dim propia
  propia = "mia " & n
  ExecuteGlobal "Sub cambia(n)" & vbLf & "WScript.Echo ""otra"", n" & vbLf & "End Sub"
  Dim i
  For i = 1 To 200
    ExecuteGlobal "Function relleno" & i & "(x)" & vbLf & "relleno" & i & " = x & ""texto largo""" & vbLf & "End Function"
  Next
  WScript.Echo propia, relleno200("!")
  cambia n + 1
End Sub
cambia 1
'> mia 1 !texto largo
'> otra 2

Function fija(n)
  ExecuteGlobal "Function fija(n) : fija = ""segunda"" : End Function"
  Set f = Nothing
  fija = "primera " & n
End Function
Set f = GetRef("fija")
WScript.Echo f(1)   '> primera 1
Set f = GetRef("fija")
WScript.Echo f(2)   '> segunda

Class Uno
  Public Function quien
    ExecuteGlobal "Class Uno : Public Function quien : quien = ""nueva"" : End Function : End Class"
    Set u = New Uno
    quien = "vieja, y ahora " & u.quien
  End Function
  Private Sub Class_Terminate
    WScript.Echo "termina la vieja"
  End Sub
End Class
Dim u
Set u = New Uno
WScript.Echo u.quien
'> termina la vieja
'> vieja, y ahora nueva

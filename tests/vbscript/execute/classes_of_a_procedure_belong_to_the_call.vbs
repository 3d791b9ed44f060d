Option Explicit
Dim kept, r
Sub P
  Execute "Class Caja : Public v : Private Sub Class_Terminate : WScript.Echo ""fin "" & v : End Sub : End Class"
  Dim c
  Set c = New Caja
  c.v = 3
  WScript.Echo TypeName(c), c.v '> Caja 3
  Execute "Set c = New Caja : c.v = 4"
  '> fin 3
  Set kept = Eval("New Caja")
  kept.v = 5
End Sub
P '> fin 4
WScript.Echo TypeName(kept), kept.v '> Caja 5
On Error Resume Next
Set r = New Caja
WScript.Echo Err.Number '> 500
Err.Clear
Set kept = Nothing '> fin 5

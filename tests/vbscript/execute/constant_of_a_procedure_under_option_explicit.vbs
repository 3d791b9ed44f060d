Option Explicit
Sub P
  On Error Resume Next
  Execute "Const j = 7"
  j = 9
  WScript.Echo Err.Number, j '> 501 7
  Err.Clear
  For j = 1 To 2 : Next
  WScript.Echo Err.Number, j '> 92 7
  Err.Clear
  Execute "Sub q : End Sub"
  q = 1
  WScript.Echo Err.Number '> 501
End Sub
P

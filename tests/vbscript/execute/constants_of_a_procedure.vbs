' In the text of an Execute the constants of the procedure are constants, too.
Sub P
  Const k = 3
  On Error Resume Next
  Execute "k = 4"
  WScript.Echo Err.Number, k, Eval("k") '> 501 3 3
  Err.Clear
  Execute "For k = 1 To 3 : Next"
  WScript.Echo Err.Number, Eval("k") '> 501 3
  Err.Clear
  Execute "Sube k"
  WScript.Echo Err.Number, Eval("k") '> 0 3
  Execute "Const j = 7 : WScript.Echo j" '> 7
  WScript.Echo j, Eval("j + 1") '> 7 8
  Execute "j = 8"
  WScript.Echo Err.Number, j '> 501 7
  Err.Clear
  Execute "Dim k : k = 8"
  WScript.Echo Err.Number, k, Eval("k") '> 0 3 8
End Sub
Sub Sube(v)
  v = v + 1
End Sub
Sub Q
  Dim n : n = 6
  On Error Resume Next
  Execute "Const n = 1"
  WScript.Echo Err.Number, n '> 1041 6
  Err.Clear
  Execute "Class n : End Class"
  WScript.Echo Err.Number, n '> 1041 6
End Sub
P
Q
On Error Resume Next
WScript.Echo TypeName(j) '> Empty

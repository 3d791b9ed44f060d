On Error Resume Next
For Each v In Array("1", "x", "3")
  n = CInt(v)
  If Err.Number <> 0 Then
    WScript.Echo "mal: " & v
    Err.Clear
  Else
    WScript.Echo n
  End If
Next
'> 1
'> mal: x
'> 3

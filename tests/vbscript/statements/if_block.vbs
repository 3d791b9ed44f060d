For n = 1 To 4
  If n = 1 Then
    WScript.Echo "uno"
  ElseIf n = 2 Then
    WScript.Echo "dos"
  ElseIf n = 3 Then
    WScript.Echo "tres"
  Else
    WScript.Echo "otro"
  End If
Next
'> uno
'> dos
'> tres
'> otro

For n = 1 To 3
  If n > 1 Then If n > 2 Then WScript.Echo "tres" Else WScript.Echo "dos"
Next
'> dos
'> tres

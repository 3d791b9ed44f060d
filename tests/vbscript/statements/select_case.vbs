For n = 1 To 5
  Select Case n
    Case 1
      WScript.Echo "uno"
    Case 2, 3
      WScript.Echo "dos o tres"
    Case 2 + 2
      WScript.Echo "cuatro"
    Case Else
      WScript.Echo "otro"
  End Select
Next
'> uno
'> dos o tres
'> dos o tres
'> cuatro
'> otro

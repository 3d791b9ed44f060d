Class K
  Public yo
End Class
For i = 1 To 1000
  Set o = New K
  Set o.yo = o
Next
WScript.Echo "fin" '> fin

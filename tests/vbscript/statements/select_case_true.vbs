n = 15
Select Case True
  Case n < 10
    WScript.Echo "bajo"
  Case n < 20
    WScript.Echo "medio" '> medio
End Select

Do
  Do
    Exit Do
  Loop
  WScript.Echo "fuera del primero" '> fuera del primero
  Exit Do
Loop

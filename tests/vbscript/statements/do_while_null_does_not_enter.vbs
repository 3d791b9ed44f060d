Do While Null
  WScript.Echo "nunca"
  Exit Do
Loop
WScript.Echo "fin" '> fin

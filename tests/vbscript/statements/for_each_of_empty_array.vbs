For Each v In Array()
  WScript.Echo "nunca"
Next
WScript.Echo "fin" '> fin

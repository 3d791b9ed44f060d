With Nothing
  WScript.Echo "entra" '> entra
  .Haz '! 424
End With

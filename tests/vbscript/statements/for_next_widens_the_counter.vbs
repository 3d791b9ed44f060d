For i = 32766 To 32769
  s = TypeName(i)
Next
WScript.Echo s, i '> Long 32770

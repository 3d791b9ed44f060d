With New RegExp
  .Pattern = "\d+"
  WScript.Echo .Test("abc123") '> True
End With

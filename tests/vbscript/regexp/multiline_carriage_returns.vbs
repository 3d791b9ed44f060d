Set r = New RegExp
r.Multiline = True
r.Global = True
r.Pattern = "^\w+$"
For Each m In r.Execute("uno" & vbCrLf & "dos" & vbLf & "tres")
  WScript.Echo m.Value
Next
'> uno
'> dos
'> tres

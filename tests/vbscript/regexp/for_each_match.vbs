Set r = New RegExp
r.Pattern = "[a-z]+"
r.Global = True
For Each m In r.Execute("uno 2 tres")
  WScript.Echo m.Value, m.FirstIndex
Next
'> uno 0
'> tres 6

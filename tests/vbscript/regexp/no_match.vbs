Set r = New RegExp
r.Pattern = "z"
Set m = r.Execute("abc")
WScript.Echo m.Count '> 0
For Each x In m
  WScript.Echo "nunca"
Next

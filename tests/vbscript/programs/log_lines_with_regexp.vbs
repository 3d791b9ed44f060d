lineas = Array("10:32:05 ESCRITURA esclavo=1 mw=10 valor=55", "10:32:06 LECTURA esclavo=2", "10:33:00 ESCRITURA esclavo=1 mw=11 valor=65535")
Set r = New RegExp
r.Pattern = "^(\d\d:\d\d:\d\d) ESCRITURA esclavo=(\d+) mw=(\d+) valor=(\d+)$"
For Each l In lineas
  For Each m In r.Execute(l)
    WScript.Echo m.SubMatches(0) & " " & m.SubMatches(2) & "<-" & m.SubMatches(3)
    total = total + CLng(m.SubMatches(3))
  Next
Next
'> 10:32:05 10<-55
'> 10:33:00 11<-65535
WScript.Echo total '> 65590

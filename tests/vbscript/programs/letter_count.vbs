t = "el perro de san roque no tiene rabo porque ramon ramirez se lo ha cortado"
Set cuenta = CreateObject("Scripting.Dictionary")
For i = 1 To Len(t)
  c = Mid(t, i, 1)
  If c <> " " Then cuenta(c) = cuenta(c) + 1
Next
For Each c In cuenta.Keys
  If cuenta(c) >= 6 Then WScript.Echo c, cuenta(c)
Next
'> e 9
'> r 9
'> o 9
'> a 6
WScript.Echo UBound(Split(t)) + 1 '> 15

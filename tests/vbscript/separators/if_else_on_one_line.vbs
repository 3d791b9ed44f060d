For c = 0 To 1
  If c Then a = 1 Else a = 2 End If
  If c Then b = 1 Else b = 2
  If c Then d = 1 : e = 3 Else d = 2 : e = 4 End If
  If c = 0 Then f = "cero" ElseIf c = 1 Then f = "uno" Else f = "más" End If
  If c Then g = 1 End If
  WScript.Echo a, b, d, e, f, TypeName(g) '> 2 2 2 4 cero Empty
  '> 1 1 1 3 uno Integer
Next

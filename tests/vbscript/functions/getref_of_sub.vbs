Sub Saluda(a, b)
  WScript.Echo a & " y " & b
End Sub
Set s = GetRef("saluda")
s "uno", "dos" '> uno y dos
Call s("tres", "cuatro") '> tres y cuatro

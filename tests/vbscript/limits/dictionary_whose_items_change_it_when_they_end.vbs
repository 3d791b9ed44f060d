Class Item
  Public nombre
  Private Sub Class_Terminate
    WScript.Echo "termina", nombre
    d("nuevo " & nombre) = 1
    If d.Exists("otro") Then d.Remove "otro"
  End Sub
End Class
Function hecho(nombre)
  Set hecho = New Item
  hecho.nombre = nombre
End Function

Dim d, n
Set d = CreateObject("Scripting.Dictionary")
d.Add "a", hecho("a")
d.Add "otro", hecho("otro")
d("a") = 5                          '> termina a
                                    '> termina otro
WScript.Echo Join(d.Keys, ",")      '> a,nuevo a,nuevo otro
d.RemoveAll
d.Add "x", hecho("x")
d.Add hecho("clave"), hecho("valor")
d.Remove "x"                        '> termina x
d.RemoveAll                         '> termina valor
                                    '> termina clave
WScript.Echo Join(d.Keys, ",")      '> nuevo valor,nuevo clave
For n = 1 To 50
  d.Add "p" & n, hecho(n)
Next
Set d("p1") = Nothing               '> termina 1
d.Key("p2") = "renombrada"
d("renombrada") = Empty             '> termina 2
WScript.Echo d.Count                '> 54
For n = 3 To 50
  d("p" & n) = ""
Next
'> termina 3
'> termina 4
'> termina 5
'> termina 6
'> termina 7
'> termina 8
'> termina 9
'> termina 10
'> termina 11
'> termina 12
'> termina 13
'> termina 14
'> termina 15
'> termina 16
'> termina 17
'> termina 18
'> termina 19
'> termina 20
'> termina 21
'> termina 22
'> termina 23
'> termina 24
'> termina 25
'> termina 26
'> termina 27
'> termina 28
'> termina 29
'> termina 30
'> termina 31
'> termina 32
'> termina 33
'> termina 34
'> termina 35
'> termina 36
'> termina 37
'> termina 38
'> termina 39
'> termina 40
'> termina 41
'> termina 42
'> termina 43
'> termina 44
'> termina 45
'> termina 46
'> termina 47
'> termina 48
'> termina 49
'> termina 50
WScript.Echo d.Count                '> 102

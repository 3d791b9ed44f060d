Class Indice
  Public Default Property Get Valor
    WScript.Echo "indice"
    a = Array(Array("otra", "x"), "y")
    Valor = 1
  End Property
End Class

Dim a, i
Set i = New Indice
a = Array(Array(1, 2), Array(3, 4))
a(i) = "escrita"                     '> indice
WScript.Echo a(1)                    '> escrita
a = Array(Array(1, 2), Array(3, 4))
a(0)(i) = "dentro"                   '> indice
WScript.Echo a(0)(1)                 '> dentro
a = Array(Array(1, 2), Array(3, 4))
WScript.Echo a(i)(0)                 '> indice
                                     '> 3
Dim t(2, 2)
t(i, i) = 4                          '> indice
                                     '> indice
WScript.Echo t(1, 1)                 '> 4

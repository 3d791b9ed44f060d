' A function has the array itself; the default member of an element assigns the variable meanwhile.
Class Voz
  Public texto
  Public Default Property Get Valor
    lista = "asignada"
    Valor = texto
  End Property
End Class

Function hecha
  Dim a(2), i
  For i = 0 To 2
    Set a(i) = New Voz
    a(i).texto = "v" & i
  Next
  hecha = a
End Function

Dim lista, uno, partes
lista = hecha()
WScript.Echo Join(lista)                  '> v0 v1 v2
WScript.Echo lista                        '> asignada
lista = hecha()
WScript.Echo Join(lista, "-")             '> v0-v1-v2
lista = hecha()
partes = Filter(lista, "v")
WScript.Echo Join(partes)                 '> v0 v1 v2
Set uno = New Voz
uno.texto = "a b c"
lista = uno
WScript.Echo Join(Split(uno), "|")        '> a|b|c

Class Propia
  Public Default Property Get Valor
    Set objeto = Nothing
    Valor = "12"
  End Property
  Private Sub Class_Terminate
    WScript.Echo "termina"
  End Sub
End Class
Dim objeto
Set objeto = New Propia
WScript.Echo Len(objeto)                  '> termina
                                          '> 2
Set objeto = New Propia
WScript.Echo CInt(objeto) + 1             '> termina
                                          '> 13
Set objeto = New Propia
WScript.Echo UCase(objeto)                '> termina
                                          '> 12
Set objeto = New Propia
WScript.Echo Trim(objeto) & "."           '> termina
                                          '> 12.

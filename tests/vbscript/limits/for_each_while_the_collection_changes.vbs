' A loop goes on over what it began with, whatever its body and the last acts of elements do to the collection.
Class Dueno
  Public n
  Private Sub Class_Terminate
    WScript.Echo "termina", n
    lista = Array("nueva")
    If Not d Is Nothing Then d.RemoveAll
  End Sub
End Class

Dim lista, d, e, k
Set d = Nothing
Function tres
  Dim a(2), i
  For i = 0 To 2
    Set a(i) = New Dueno
    a(i).n = i
  Next
  tres = a
End Function
lista = tres()
For Each e In lista
  WScript.Echo "vuelta", e.n
  lista = Empty
Next
'> vuelta 0
'> vuelta 1
'> vuelta 2
'> termina 0
'> termina 1
Set e = Nothing
'> termina 2
WScript.Echo lista(0)  '> nueva

Set d = CreateObject("Scripting.Dictionary")
For k = 1 To 3
  d.Add "k" & k, New Dueno
  d("k" & k).n = k
Next
For Each k In d
  WScript.Echo k, d.Exists(k)
  If d.Exists(k) Then d.Remove k
Next
'> k1 True
'> termina 1
'> termina 2
'> termina 3
'> k2 False
'> k3 False
WScript.Echo d.Count  '> 0

' Elements that are written in the loop are seen; the variable of the loop lets go of the one before.
Class Hoja
  Public n
  Private Sub Class_Terminate
    WScript.Echo "cae", n
    otra(1) = "escrita al caer " & n
  End Sub
End Class
Dim otra, vuelta
otra = Array(New Hoja, New Hoja, New Hoja)
For Each e In otra
  vuelta = vuelta + 1
  If IsObject(e) Then
    e.n = vuelta
    otra(2) = "cambiada"
    otra(0) = Empty
  Else
    WScript.Echo e
  End If
Next
'> cae
'> cae
'> cae 1
'> escrita al caer |
'> cambiada
On Error Resume Next
For Each e In otra
  Erase otra
  WScript.Echo Err.Number
  Exit For
Next
'> 10

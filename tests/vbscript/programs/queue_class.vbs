Class Cola
  Private nodos, primero, ultimo
  Private Sub Class_Initialize
    Set nodos = CreateObject("Scripting.Dictionary")
    primero = 1
  End Sub
  Public Sub Entra(v)
    ultimo = ultimo + 1
    nodos.Add ultimo, v
  End Sub
  Public Function Sale
    Sale = nodos(primero)
    nodos.Remove primero
    primero = primero + 1
  End Function
  Public Property Get Vacia
    Vacia = nodos.Count = 0
  End Property
End Class
Set c = New Cola
c.Entra "uno" : c.Entra "dos"
s = c.Sale
c.Entra "tres"
While Not c.Vacia
  s = s & " " & c.Sale
Wend
WScript.Echo s '> uno dos tres

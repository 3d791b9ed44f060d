' Every frame that an error leaves lets its locals go, the innermost first, and the error is the first one still.
Class Local
  Public n
  Private Sub Class_Terminate
    On Error Resume Next
    WScript.Echo "sale", n
    x = 1 / 0
    ReDim lista(n * 1000)
  End Sub
End Class
Dim lista()
ReDim lista(2)
Sub nivel(n)
  Dim mio
  Set mio = New Local
  mio.n = n
  If n < 4 Then nivel n + 1
  lista(0) = CInt("mal")
End Sub
On Error Resume Next
nivel 1
WScript.Echo Err.Number, UBound(lista)
'> sale 4
'> sale 3
'> sale 2
'> sale 1
'> 13 1000
Err.Clear

Class Falla
  Public Default Property Get v
    Dim mio
    Set mio = New Local
    mio.n = 9
    Err.Raise 1234
  End Property
End Class
lista(0) = "sigue"
lista(0) = Join(Array("a", New Falla, "b"))
'> sale 9
WScript.Echo Err.Number  '> 1234

Class Sobra
  Public n
  Private Sub Class_Terminate
    WScript.Echo "sobra", n, UBound(lista)
    ReDim Preserve lista(n * 3000)
    lista(n) = "puesta por " & n
  End Sub
End Class

Dim lista(), i
ReDim lista(3)
For i = 0 To 3
  Set lista(i) = New Sobra
  lista(i).n = i
Next
ReDim Preserve lista(1)              '> sobra 2 1
                                     '> sobra 3 6000
WScript.Echo UBound(lista)           '> 9000
WScript.Echo lista(2), lista(3)      '> puesta por 2 puesta por 3
lista(1) = Empty                     '> sobra 1 9000
WScript.Echo UBound(lista), lista(1) '> 3000 puesta por 1
lista(0).n = 2
lista(0) = Empty                     '> sobra 2 3000
WScript.Echo UBound(lista)           '> 6000

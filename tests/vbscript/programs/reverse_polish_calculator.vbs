Function Calcula(t)
  Dim pila(20), n, p
  For Each p In Split(t)
    If IsNumeric(p) Then
      pila(n) = CDbl(p)
      n = n + 1
    Else
      n = n - 1
      Select Case p
        Case "+" : pila(n - 1) = pila(n - 1) + pila(n)
        Case "-" : pila(n - 1) = pila(n - 1) - pila(n)
        Case "*" : pila(n - 1) = pila(n - 1) * pila(n)
        Case "/" : pila(n - 1) = pila(n - 1) / pila(n)
        Case "^" : pila(n - 1) = pila(n - 1) ^ pila(n)
      End Select
    End If
  Next
  Calcula = pila(0)
End Function
WScript.Echo Calcula("3 4 + 2 * 7 /"), Calcula("2 3 ^ 1 +"), Calcula("2,5 2 *") '> 2 9 5

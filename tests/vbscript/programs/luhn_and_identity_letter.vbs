Function Luhn(t)
  Dim i, n, suma
  For i = 1 To Len(t)
    n = CInt(Mid(t, Len(t) - i + 1, 1))
    If i Mod 2 = 0 Then
      n = n * 2
      If n > 9 Then n = n - 9
    End If
    suma = suma + n
  Next
  Luhn = suma Mod 10 = 0
End Function
Function Letra(dni)
  Letra = Mid("TRWAGMYFPDXBNJZSQVHLCKE", dni Mod 23 + 1, 1)
End Function
WScript.Echo Luhn("79927398713"), Luhn("79927398710") '> True False
WScript.Echo Letra(12345678) '> Z

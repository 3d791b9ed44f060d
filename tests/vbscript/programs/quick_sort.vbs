Option Explicit

Sub Ordena(a, ByVal izq, ByVal der)
  Dim i, j, pivote, t
  i = izq
  j = der
  pivote = a((izq + der) \ 2)
  Do While i <= j
    While a(i) < pivote
      i = i + 1
    Wend
    While a(j) > pivote
      j = j - 1
    Wend
    If i <= j Then
      t = a(i) : a(i) = a(j) : a(j) = t
      i = i + 1
      j = j - 1
    End If
  Loop
  If izq < j Then Ordena a, izq, j
  If i < der Then Ordena a, i, der
End Sub

' Fifty numbers of a generator that is easy to work out elsewhere.
Dim a(49), n, x, suma
x = 1
For n = 0 To 49
  x = x * 16807
  x = x - Int(x / 2147483647) * 2147483647
  a(n) = x - Int(x / 1000) * 1000
  suma = suma + a(n)
Next
Ordena a, 0, 49
WScript.Echo a(0), a(1), a(2), a(3), a(4) '> 42 73 91 97 99
WScript.Echo a(45), a(46), a(47), a(48), a(49), suma '> 930 933 967 979 987 25680

Const LIMITE = 1000
Dim compuesto(1000)
For i = 2 To LIMITE
  If Not compuesto(i) Then
    cuantos = cuantos + 1
    suma = suma + i
    ultimo = i
    For j = i * i To LIMITE Step i
      compuesto(j) = True
    Next
  End If
Next
WScript.Echo cuantos, suma, ultimo '> 168 76127 997

' Recursive descent over sums, products and parentheses.
Dim texto, lugar
Function Mira
  Mira = Mid(texto, lugar, 1)
End Function
Function Factor
  Dim n
  If Mira() = "(" Then
    lugar = lugar + 1
    Factor = Suma()
    lugar = lugar + 1
  ElseIf Mira() = "-" Then
    lugar = lugar + 1
    Factor = -Factor()
  Else
    Do While IsNumeric(Mira())
      n = n & Mira()
      lugar = lugar + 1
    Loop
    Factor = CLng(n)
  End If
End Function
Function Termino
  Termino = Factor()
  Do
    Select Case Mira()
      Case "*"
        lugar = lugar + 1
        Termino = Termino * Factor()
      Case "/"
        lugar = lugar + 1
        Termino = Termino / Factor()
      Case Else
        Exit Do
    End Select
  Loop
End Function
Function Suma
  Suma = Termino()
  Do
    Select Case Mira()
      Case "+"
        lugar = lugar + 1
        Suma = Suma + Termino()
      Case "-"
        lugar = lugar + 1
        Suma = Suma - Termino()
      Case Else
        Exit Do
    End Select
  Loop
End Function
Function Evalua(t)
  texto = t
  lugar = 1
  Evalua = Suma()
End Function
WScript.Echo Evalua("2+3*4"), Evalua("(2+3)*4"), Evalua("2*(3+(4-1))*-2"), Evalua("7/2-0") '> 14 20 -24 3,5

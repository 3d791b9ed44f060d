Function Par(n)
  If n = 0 Then Par = True Else Par = Impar(n - 1)
End Function
Function Impar(n)
  If n = 0 Then Impar = False Else Impar = Par(n - 1)
End Function
WScript.Echo Par(10), Par(7) '> True False

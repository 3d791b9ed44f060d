' A tank that follows its set point.
Dim nivel, consigna
nivel = 0
consigna = 100
For ciclo = 1 To 10
  nivel = nivel + 0.5 * (consigna - nivel)
Next
WScript.Echo nivel, CInt(nivel) '> 99,90234375 100

' IEEE single: sign, 8 bits of exponent, 23 of mantissa.
Function Flotante(alto, bajo)
  Dim signo, exponente, mantisa
  signo = 1
  If alto And 32768 Then signo = -1
  exponente = (alto And 32767) \ 128
  mantisa = (alto And 127) * 65536 + bajo
  Flotante = signo * (1 + mantisa / 8388608) * 2 ^ (exponente - 127)
End Function
WScript.Echo Flotante(&H42C8, 32768), Flotante(16256, 0), Flotante(49152 - 128, 0) '> 100,25 1 -1

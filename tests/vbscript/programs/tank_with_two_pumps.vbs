' Level in register 0, pump 1 in bit 0 and pump 2 in bit 1 of register 1.
mw.leer 1, 60
mw.escribir 1, 0, 50
For turn = 1 To 40
  level = mw.leer(1, 0)
  If level > 80 Then mw.escribir_bit 1, 1, 0, 1
  If level > 90 Then mw.escribir_bit 1, 1, 1, 1
  If level < 60 Then mw.escribir 1, 1, 0
  pumps = (mw.leer(1, 1) And 1) + (mw.leer(1, 1) \ 2 And 1)
  mw.escribir 1, 0, level + 6 - 8 * pumps
Next
WScript.Echo mw.leer(1, 0), mw.leer(1, 1) '> 82 0

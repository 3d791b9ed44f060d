' What a station does with 16-bit registers.
Function ConSigno(w)
  If w >= 32768 Then ConSigno = w - 65536 Else ConSigno = w
End Function
Function SinSigno(n)
  If n < 0 Then SinSigno = n + 65536 Else SinSigno = n
End Function
Function PonBit(w, bit, valor)
  If valor Then PonBit = w Or 2 ^ bit Else PonBit = w And Not 2 ^ bit
End Function
WScript.Echo ConSigno(65535), ConSigno(32767), ConSigno(32768), SinSigno(-1), SinSigno(-32768) '> -1 32767 -32768 65535 32768
WScript.Echo PonBit(0, 15, True), PonBit(65535, 0, False), PonBit(8, 3, True) '> 32768 65534 8

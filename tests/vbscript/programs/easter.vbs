Function Pascua(a)
  x = a Mod 19
  b = a \ 100 : c = a Mod 100
  d = b \ 4 : e = b Mod 4
  f = (b + 8) \ 25
  g = (b - f + 1) \ 3
  h = (19 * x + b - d - g + 15) Mod 30
  i = c \ 4 : k = c Mod 4
  l = (32 + 2 * e + 2 * i - h - k) Mod 7
  m = (x + 11 * h + 22 * l) \ 451
  Pascua = DateSerial(a, (h + l - 7 * m + 114) \ 31, (h + l - 7 * m + 114) Mod 31 + 1)
End Function
WScript.Echo Pascua(2020), Pascua(2021), Pascua(2024), Pascua(2025)
'> 12/04/2020 04/04/2021 31/03/2024 20/04/2025

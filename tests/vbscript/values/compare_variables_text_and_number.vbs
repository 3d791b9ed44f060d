' Beside a number that is no literal, texts are compared.
t = "10" : n = 10
WScript.Echo t = n, t > n, n < t, "007" = n '> True False False False
t = "9"
WScript.Echo t > n, n > t, t = n - 1, t = Nueve(), n - 1 = t '> True False True True True
t = "abc"
WScript.Echo t = n, t > n, t > n + 1 '> False True True
t = ""
WScript.Echo t > n, n > t '> False True
Function Nueve
  Nueve = 9
End Function

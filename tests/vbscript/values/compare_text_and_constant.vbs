' A constant is its literal, and one with a sign is not.
Const SIETE = 7, MENOS = -7, DOS = "2"
WScript.Echo "007" = SIETE, "-07" = MENOS, DOS = 2 '> True False True
Sub P
  Const OCHO = 8
  WScript.Echo "08" = OCHO, "08" = SIETE + 1 '> True False
End Sub
P
x = ("7a" = SIETE) '! 13

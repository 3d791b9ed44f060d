' A literal with a minus sign is no literal any more.
WScript.Echo "7a" = -7, "-7" = -7, -7 = "-7,0", "-07" = -7 '> False True False False
t = "a"
If t > -1 Then WScript.Echo "mayor" '> mayor
Select Case "-1"
  Case -1
    WScript.Echo "mismo texto" '> mismo texto
End Select
WScript.Echo "255" = &HFF, "-1" = &HFFFF '> True True
x = ("a" = &HFFFF) '! 13

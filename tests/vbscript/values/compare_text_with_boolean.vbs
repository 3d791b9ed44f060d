' The Boolean becomes its word, and two texts are compared: letter case and blanks count, nothing fails.
WScript.Echo "tRUE" = True, "True" = (3 > 2), "truth" <> False '> False True True
WScript.Echo True = "True", False = "False", False = "false", True = " True" '> True True False False
WScript.Echo "-1" = True, "0" = False, "" = False '> False False False
WScript.Echo "Tru" < True, "Trues" > True, "U" >= True, True <= "True", False < "False" '> True True True True False
b = True : t = "True"
WScript.Echo b = t, t = b, b <> t, t < b '> True True False False
Select Case "False"
Case False WScript.Echo "caso" '> caso
End Select
If t = True Then WScript.Echo "si" '> si
t = "siete"
If Not (t = b) Then WScript.Echo "no" '> no

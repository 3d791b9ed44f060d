' Beside a text Empty is the text without characters, whether it is written or held.
Dim e, o
Class Five : Public Default Property Get V : V = "5" : End Property : End Class
Set o = New Five
WScript.Echo "" = Empty, "a" = Empty, "a" > Empty, "a" <= Empty, "0" = Empty '> True False True False False
WScript.Echo Empty = "", Empty = "a", Empty < "a", Empty >= "a", Empty = "0" '> True False True False False
WScript.Echo "" = e, "a" = e, "a" > e, e = "", e < "a", e <> "0" '> True False True True True True
WScript.Echo "" = unknown, "a" > unknown, unknown = "", unknown < "a" '> True True True True
WScript.Echo o = "5", o = "50", "50" > o, o < "50", o = Empty, Empty < o '> True False True True False True
Select Case "a"
  Case Empty WScript.Echo "vacío"
  Case "a" WScript.Echo "a" '> a
End Select

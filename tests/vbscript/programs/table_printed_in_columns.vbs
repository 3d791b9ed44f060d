Function Pad(s, n)
  If n < 0 Then Pad = Right(Space(-n) & s, -n) Else Pad = Left(s & Space(n), n)
End Function
rows = Array(Array("pump", 12, 3.5), Array("valve", 7, 10.25))
For Each r In rows
  WScript.Echo Pad(r(0), 6) & "|" & Pad(r(1), -4) & "|" & Pad(Replace(FormatNumber(r(2), 2), ",", "."), -6)
Next
'> pump  |  12|  3.50
'> valve |   7| 10.25

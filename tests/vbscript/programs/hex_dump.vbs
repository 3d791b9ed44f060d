Function Dump(s)
  Dim i
  For i = 1 To Len(s)
    Dump = Dump & Right("0" & Hex(Asc(Mid(s, i, 1))), 2)
    If i < Len(s) Then Dump = Dump & " "
  Next
End Function
WScript.Echo Dump("Modbus") '> 4D 6F 64 62 75 73
WScript.Echo Dump(vbCrLf & Chr(0)) '> 0D 0A 00

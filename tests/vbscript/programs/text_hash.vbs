Function Resumen(t)
  Dim i
  Resumen = 0
  For i = 1 To Len(t)
    Resumen = (Resumen * 31 + AscW(Mid(t, i, 1))) And 65535
  Next
End Function
WScript.Echo Resumen("esclavo"), Resumen("") '> 23011 0

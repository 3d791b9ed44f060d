Function UCase(s)
  UCase = "mía " & s
End Function
WScript.Echo UCase("a") '> mía a

Sub Prueba(texto)
  On Error Resume Next
  Execute texto
  s = s & " " & Err.Number
End Sub
For Each t In Array("x = Err.Number(1)", "x = Err.Source(1)", "x = Err.Description(1)", "x = Err.HelpFile(1)", "x = Err.HelpContext(1)", "Err.Clear 1", "Err.Raise 1, 2, 3, 4, 5, 6", "Err.Raise 77, 2, 3, 4, 5")
  Prueba t
Next
WScript.Echo s '>  450 450 450 450 450 450 450 77

Set r = New RegExp
r.Pattern = "a"
Set m = r.Execute("a")
Sub Prueba(texto)
  On Error Resume Next
  Execute texto
  s = s & " " & Err.Number
End Sub
For Each t In Array("x = r.Test()", "x = r.Test(""a"", 1)", "Set x = r.Execute()", "Set x = r.Execute(1, 2)", "x = r.Replace(""a"")", "x = r.Replace(""a"", 1, 2)", "x = m.Item()", "x = m.Item(0, 1)", "x = m.Count(1)", "x = m(0).Value(1)", "x = m(0).FirstIndex(1)", "x = m(0).Length(1)", "x = m(0).SubMatches(0, 1)")
  Prueba t
Next
WScript.Echo s '>  450 450 450 450 450 450 450 450 450 450 450 450 450

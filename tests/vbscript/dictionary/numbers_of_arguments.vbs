On Error Resume Next
Set d = CreateObject("Scripting.Dictionary")
Sub Prueba(texto)
  On Error Resume Next
  Execute texto
  s = s & " " & Err.Number
End Sub
For Each t In Array("d.Add 1", "d.Add 1, 2, 3", "x = d.Exists()", "x = d.Exists(1, 2)", "x = d.Item()", "x = d.Item(1, 2)", "x = d(1, 2)", "x = d.Count(1)", "x = d.CompareMode(1)", "x = d.Items(0, 1)", "x = d.Keys(0, 1)", "d.Remove", "d.Remove 1, 2", "d.RemoveAll 1")
  Prueba t
Next
WScript.Echo s '>  450 450 450 450 450 450 450 450 450 450 450 450 450 450
WScript.Echo d.Count, d.Exists(1), IsEmpty(d(7)), d.Count, UBound(d.Items), d.Keys(0) '> 0 False True 1 0 7

' Fields in quotes may hold commas and doubled quotes.
Function Fields(line)
  Dim r, m, i, list()
  Set r = New RegExp
  r.Global = True
  r.Pattern = "(?:^|,)(?:""((?:[^""]|"""")*)""|([^,]*))"
  Set m = r.Execute(line)
  ReDim list(m.Count - 1)
  For i = 0 To m.Count - 1
    If m(i).SubMatches(0) <> "" Then
      list(i) = Replace(m(i).SubMatches(0), """""", """")
    Else
      list(i) = m(i).SubMatches(1)
    End If
  Next
  Fields = list
End Function
WScript.Echo Join(Fields("a,b,c"), "|") '> a|b|c
WScript.Echo Join(Fields("1,""x, y"",3"), "|") '> 1|x, y|3
WScript.Echo Join(Fields("p,""say """"hi"""""",q"), "|") '> p|say "hi"|q

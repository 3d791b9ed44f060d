Sub Include(text) : ExecuteGlobal text : End Sub
Include "Const Factor = 3" & vbLf & "Function Times(x) : Times = x * Factor : End Function"
Include "Class Counter" & vbLf & "Public n" & vbLf & "Sub Add : n = n + 1 : End Sub" & vbLf & "End Class"
WScript.Echo Eval("Times(14)") '> 42
Set c = Eval("New Counter")
c.Add : c.Add
WScript.Echo c.n '> 2

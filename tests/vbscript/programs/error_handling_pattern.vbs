' The usual way: try, note, clear, go on.
Dim failures
Function Try(what)
  On Error Resume Next
  Execute what
  If Err.Number <> 0 Then
    failures = failures & "[" & Err.Number & "]"
    Try = False
    Err.Clear
  Else
    Try = True
  End If
End Function
WScript.Echo Try("a = 1") '> True
WScript.Echo Try("a = 1 / 0") '> False
WScript.Echo Try("a = CInt(40000)") '> False
WScript.Echo Try("Err.Raise 1000, ""me"", ""mine""") '> False
WScript.Echo Try("Set a = 5") '> False
WScript.Echo failures '> [11][6][1000][424]
WScript.Echo Err.Number '> 0

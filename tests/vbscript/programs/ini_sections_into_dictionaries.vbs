Dim text, ini, section, line, k
text = "[net]" & vbCrLf & "port = 502" & vbCrLf & "; a comment" & vbCrLf & vbCrLf & "[log]" & vbCrLf & "Level=3" & vbCrLf & "path = C:\x=y"
Set ini = CreateObject("Scripting.Dictionary")
ini.CompareMode = vbTextCompare
For Each line In Split(text, vbCrLf)
  line = Trim(line)
  If line = "" Then
  ElseIf Left(line, 1) = ";" Then
  ElseIf Left(line, 1) = "[" Then
    section = Mid(line, 2, Len(line) - 2)
  Else
    k = InStr(line, "=")
    ini(section & "." & Trim(Left(line, k - 1))) = Trim(Mid(line, k + 1))
  End If
Next
WScript.Echo ini.Count '> 3
WScript.Echo ini("NET.Port") + 1 '> 503
WScript.Echo ini("log.level") * 2 '> 6
WScript.Echo ini("log.path") '> C:\x=y
WScript.Echo ini.Exists("net.host") '> False

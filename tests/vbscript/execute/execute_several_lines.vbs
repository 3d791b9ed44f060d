Execute "For i = 1 To 3" & vbCrLf & "s = s & i" & vbCrLf & "Next"
WScript.Echo s '> 123

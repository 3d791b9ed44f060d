On Error Resume Next
Execute "Option Explicit" & vbCrLf & "noDeclarada = 1"
WScript.Echo Err.Number '> 500

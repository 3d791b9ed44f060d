On Error Resume Next
Execute "If True"
WScript.Echo Err.Number '> 1017

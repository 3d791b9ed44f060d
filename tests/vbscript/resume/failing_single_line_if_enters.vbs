On Error Resume Next
If 1 / 0 Then WScript.Echo "dentro" Else WScript.Echo "sino" '> dentro
WScript.Echo Err.Number '> 11

If True Then WScript.Echo "a" End If
'> a
If False Then WScript.Echo "a" Else WScript.Echo "b" End If
'> b

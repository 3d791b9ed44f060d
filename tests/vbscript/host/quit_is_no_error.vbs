On Error Resume Next
WScript.Echo "antes" '> antes
WScript.Quit 0
WScript.Echo "nunca"

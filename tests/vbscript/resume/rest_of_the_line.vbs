On Error Resume Next
x = 1 / 0 : y = 2 : WScript.Echo y '> 2

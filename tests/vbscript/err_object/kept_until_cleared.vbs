On Error Resume Next
x = 1 / 0
y = 5
z = y + 1
WScript.Echo Err.Number, z '> 11 6

On Error Resume Next
WScript.Echo "no llega"
x = (1 '! 1006

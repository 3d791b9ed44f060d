Dim Hex
Hex = 7
WScript.Echo Hex '> 7

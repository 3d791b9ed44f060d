WScript.Echo &H10 & "x" '> 16x

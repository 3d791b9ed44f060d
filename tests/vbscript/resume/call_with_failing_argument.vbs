On Error Resume Next
WScript.Echo "no sale " & 1 / 0
WScript.Echo "sale" '> sale

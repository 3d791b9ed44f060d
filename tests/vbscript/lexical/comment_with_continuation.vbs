' a comment ends with its line, whatever the last character _
WScript.Echo "línea 2" '> línea 2

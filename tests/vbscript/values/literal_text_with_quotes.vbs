WScript.Echo "dice ""hola""", Len("""") '> dice "hola" 1
WScript.Echo """" & "x" & """" '> "x"

If 5 Then WScript.Echo "número" '> número
If "True" Then WScript.Echo "texto" '> texto
If -0.1 Then WScript.Echo "fracción" '> fracción
If Empty Then WScript.Echo "nunca"
If "0" Then WScript.Echo "nunca"

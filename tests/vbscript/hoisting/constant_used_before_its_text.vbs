WScript.Echo C '> 5
Const C = 5

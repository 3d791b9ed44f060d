WScript.Echo "uno" '> uno
x = CInt("dos") '! 13
WScript.Echo "tres"
